#include "workbench/window/run_out/run_out_actions.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/files/work_bar.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

namespace Rotavue::Workbench {

namespace {

/// All of the rotor's motion is taken for run-out, so that nothing is left of it.
class RunOutActionsTest : public BenchTest {
protected:
    RunOutActionsTest() { plane_ = &add(); }

    void takeFrom(const TimeSpan& stretch) {
        marked_ = stretch;
        actions_.refresh();
        actions_.take.trigger();
    }

    static double largest(const Plane& plane) {
        double largest = 0.0;
        for (const double value : plane.shown().recording.x)
            largest = std::max(largest, std::abs(value));
        return largest;
    }

    bool becomes(const std::string& words) {
        return QTest::qWaitFor([&] { return plane_->compensation() == words; });
    }

    /// As if a view with another bearing were opened: memory of the plane that goes may be the new
    /// one's.
    void openAnother() {
        bench_.removePlane(*std::exchange(plane_, nullptr));
        bench_.undoStack().clear();
        plane_ = &add();
        actions_.refresh();
    }

    Plane* plane_ = nullptr;
    std::optional<TimeSpan> marked_;
    RunOutActions actions_{bench_, {[this] { return plane_; }, [this] { return marked_; }}};
};

constexpr const char* VectorWords = "run-out compensated: 1X, 2X vector";
constexpr const char* WaveformWords = "run-out compensated: waveform";

TEST_F(RunOutActionsTest, WithoutAMarkedStretchThereIsNothingToTake) {
    EXPECT_FALSE(actions_.take.isEnabled());
    marked_ = TimeSpan{0.1, 0.5};
    actions_.refresh();
    EXPECT_TRUE(actions_.take.isEnabled());
    EXPECT_FALSE(actions_.vector.isEnabled());
    EXPECT_TRUE(actions_.none.isChecked());
}

TEST_F(RunOutActionsTest, TakenRunOutIsTakenAwayAndCanBeUndone) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    EXPECT_NEAR(largest(*plane_), 0.0, 1e-3);
    EXPECT_TRUE(actions_.vector.isChecked());
    bench_.undoStack().undo();
    EXPECT_EQ(plane_->compensation(), "");
    EXPECT_NEAR(largest(*plane_), 40.0, 0.1);
    EXPECT_TRUE(actions_.none.isChecked());
    bench_.undoStack().redo();
    EXPECT_EQ(plane_->compensation(), VectorWords);
    EXPECT_NEAR(largest(*plane_), 0.0, 1e-3);
}

TEST_F(RunOutActionsTest, FormIsChosenAndRunOutLetBackIn) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    actions_.waveform.trigger();
    ASSERT_TRUE(becomes(WaveformWords));
    EXPECT_NEAR(largest(*plane_), 0.0, 0.01);
    actions_.none.trigger();
    EXPECT_EQ(plane_->compensation(), "");
    EXPECT_EQ(&plane_->shown(), &plane_->original());
    actions_.waveform.trigger();  // the run-out is still known
    EXPECT_TRUE(becomes(WaveformWords));
}

TEST_F(RunOutActionsTest, WhatWasMadeBeforeIsShownAgainAndNotMadeAnew) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    const auto vector = plane_->sharedShown();
    actions_.waveform.trigger();
    ASSERT_TRUE(becomes(WaveformWords));
    const auto waveform = plane_->sharedShown();
    actions_.vector.trigger();
    EXPECT_EQ(plane_->sharedShown(), vector);
    actions_.waveform.trigger();
    EXPECT_EQ(plane_->sharedShown(), waveform);
    actions_.none.trigger();
    const int steps = bench_.undoStack().count();
    takeFrom({0.1, 0.5});
    EXPECT_EQ(plane_->sharedShown(), vector);
    takeFrom({0.1, 0.5});
    EXPECT_EQ(bench_.undoStack().count(), steps + 1) << "it is shown already";
}

TEST_F(RunOutActionsTest, LeavingItInWinsOverWhatIsStillBeingTaken) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    takeFrom({0.1, 0.7});
    actions_.none.trigger();
    QTest::qWait(300);
    EXPECT_EQ(plane_->compensation(), "");
    EXPECT_EQ(plane_->sharedShown(), plane_->sharedOriginal());
}

TEST_F(RunOutActionsTest, TheFormThatIsShownWinsOverOneThatIsStillBeingMade) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    actions_.waveform.trigger();
    actions_.vector.trigger();
    QTest::qWait(300);
    EXPECT_EQ(plane_->compensation(), VectorWords);
    EXPECT_TRUE(actions_.vector.isChecked());
}

TEST_F(RunOutActionsTest, AfterACancelTheMenuTicksTheFormThatIsShown) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    actions_.waveform.trigger();
    EXPECT_TRUE(actions_.waveform.isChecked());
    bench_.cancelWork();
    EXPECT_TRUE(actions_.vector.isChecked());
    QTest::qWait(300);
    EXPECT_EQ(plane_->compensation(), VectorWords);
    EXPECT_TRUE(actions_.vector.isChecked());
}

TEST_F(RunOutActionsTest, WhatIsKnownOfRunOutHoldsNoRecording) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    const std::weak_ptr original = plane_->sharedOriginal();
    plane_ = nullptr;
    bench_.showPlanes({}, 0.0);
    QTest::qWait(50);
    EXPECT_TRUE(original.expired());
}

TEST_F(RunOutActionsTest, WhatIsCancelledLeavesThePlaneAsItIsWithoutAWord) {
    WorkBar bar(bench_);
    const QSignalSpy reports(&bench_, &Bench::troubled);
    takeFrom({0.1, 0.5});
    bar.findChild<QPushButton*>("workCancel")->click();
    QTest::qWait(300);
    EXPECT_EQ(plane_->compensation(), "");
    EXPECT_EQ(reports.count(), 0);
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(RunOutActionsTest, TheBenchTellsOfItUntilItIsThere) {
    const QSignalSpy words(&bench_, &Bench::worked);
    const QSignalSpy ends(&bench_, &Bench::workEnded);
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    ASSERT_GE(ends.size(), 1);
    for (const QList<QVariant>& told : words)
        EXPECT_EQ(told[0].toString(), "rotor without run-out");
    const auto told = words.size();
    QTest::qWait(100);
    EXPECT_EQ(words.size(), told);  // nothing more is being made
}

TEST_F(RunOutActionsTest, WhatDoubtsTheRunOutIsANoteOfThePlane) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    const std::vector<std::string> notes = plane_->notes();
    EXPECT_EQ(std::count(notes.begin(), notes.end(),
                         "run-out taken at 3000 rpm: above 1000 rpm the shaft's own motion is part "
                         "of it"),
              1);
}

TEST_F(RunOutActionsTest, WhatGivesNoneIsReportedInALine) {
    QSignalSpy reports(&bench_, &Bench::troubled);
    takeFrom({0.1, 0.101});
    ASSERT_TRUE(reports.wait());
    EXPECT_EQ(reports[0][0].toString(),
              "rotor: the run-out needs a whole turn of the shaft, and there is none between 0.1 s "
              "and 0.101 s");
    EXPECT_EQ(plane_->compensation(), "");
}

TEST_F(RunOutActionsTest, PlaneThatIsGoneMeanwhileIsNoMatter) {
    takeFrom({0.1, 0.5});
    Plane* const gone = plane_;
    plane_ = nullptr;
    bench_.removePlane(*gone);
    QTest::qWait(200);
    EXPECT_TRUE(bench_.planes().empty());
}

TEST_F(RunOutActionsTest, RunOutOfAPlaneThatIsGoneIsNeverThatOfALaterOne) {
    for (int i = 0; i < 20; ++i) {
        takeFrom({0.1, 0.5});
        ASSERT_TRUE(becomes(VectorWords));
        openAnother();
        EXPECT_FALSE(actions_.vector.isEnabled());
        EXPECT_FALSE(actions_.waveform.isEnabled());
    }
}

TEST_F(RunOutActionsTest, WhatIsFoundForAPlaneThatIsGoneReachesNoOther) {
    for (int i = 0; i < 20; ++i) {
        takeFrom({0.1, 0.5});
        openAnother();
        QTest::qWait(50);
        EXPECT_EQ(plane_->compensation(), "");
    }
}

TEST_F(RunOutActionsTest, RunOutThatAPlaneBeginsWithoutIsKnown) {
    plane_ = &bench_.addPlane(still(*plane_));
    actions_.refresh();
    EXPECT_TRUE(actions_.vector.isChecked());
    actions_.none.trigger();
    EXPECT_EQ(plane_->compensation(), "");
    actions_.waveform.trigger();
    EXPECT_TRUE(becomes(WaveformWords));
    EXPECT_EQ(plane_->shown().runOut->source.span.to, 0.5);
}

TEST_F(RunOutActionsTest, TakesItFromSeveralPlanesAtOnce) {
    std::vector<Plane*> planes{plane_, &add(), &add(), &add()};
    for (Plane* const plane : planes) {
        plane_ = plane;
        takeFrom({0.1, 0.5});
    }
    for (Plane* const plane : planes) {
        plane_ = plane;
        EXPECT_TRUE(becomes(VectorWords));
    }
}

TEST_F(RunOutActionsTest, UndoTakesOffWhatWasTakenOffBefore) {
    takeFrom({0.1, 0.5});
    ASSERT_TRUE(becomes(VectorWords));
    const int before = bench_.undoStack().index();
    takeFrom({0.2, 0.9});
    ASSERT_TRUE(QTest::qWaitFor([&] { return bench_.undoStack().index() > before; }));
    EXPECT_EQ(plane_->shown().runOut->source.span.from, 0.2);
    bench_.undoStack().undo();
    EXPECT_EQ(plane_->shown().runOut->source.span.from, 0.1);
    actions_.waveform.trigger();
    ASSERT_TRUE(becomes(WaveformWords));
    EXPECT_EQ(plane_->shown().runOut->source.span.from, 0.1);
    bench_.undoStack().undo();
    bench_.undoStack().undo();
    EXPECT_FALSE(plane_->shown().runOut);
}

TEST_F(RunOutActionsTest, ARecordingOfSlowRollGivesItToo) {
    QTemporaryDir folder;
    const QString file = folder.filePath("slow.csv");
    QFile slow(file);
    ASSERT_TRUE(slow.open(QIODevice::WriteOnly));
    // A turn in 100 samples; 10 of the plane's 40 um are run-out, in phase with the pulses.
    slow.write("t,x,y,angle\n");
    for (int i = 0; i < 1000; ++i)
        slow.write(QString::asprintf("%.3f,%.6f,0,%.1f\n", i / 1000.0,
                                     10.0 * std::cos(2.0 * std::numbers::pi * i / 100.0),
                                     3.6 * (i % 100))
                       .toUtf8());
    slow.close();
    actions_.takeFrom(file.toStdString());
    ASSERT_TRUE(becomes(VectorWords));
    EXPECT_NEAR(largest(*plane_), 30.0, 0.05);
    EXPECT_EQ(plane_->shown().runOut->source.slowRoll, file.toStdString());
}

TEST_F(RunOutActionsTest, RecordingThatCannotBeReadIsReportedAndNothingChanges) {
    QSignalSpy reports(&bench_, &Bench::troubled);
    actions_.takeFrom("missing.csv");
    ASSERT_TRUE(reports.wait());
    EXPECT_TRUE(reports[0][0].toString().startsWith("rotor: missing.csv: "));
    EXPECT_EQ(plane_->compensation(), "");
}

/// What the file dialog that opens next looks like; it is closed with that file or with none.
struct DialogSeen {
    QWidget* parent = nullptr;
    QString folder;
    QStringList filters;

    explicit DialogSeen(QAction& opener, const QString& file = {}) {
        QTimer::singleShot(0, [this, file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            parent = dialog->parentWidget();
            folder = dialog->directory().absolutePath();
            filters = dialog->nameFilters();
            if (file.isEmpty()) return dialog->reject();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
        });
        opener.trigger();
    }
};

TEST_F(RunOutActionsTest, SlowRollIsAskedForInFrontOfTheWindowAndBesideTheRecording) {
    const QTemporaryDir recordings;
    const QTemporaryDir others;
    QFile slow(others.filePath("slow.tsv"));
    ASSERT_TRUE(slow.open(QIODevice::WriteOnly));
    slow.write("t\tx\ty\n0\t1\t2\n");
    slow.close();
    Recording recording = rotor();
    recording.file = recordings.filePath("pump.csv").toStdString();
    plane_ = &add(std::move(recording));
    QWidget window;
    RunOutActions actions{bench_, {[this] { return plane_; }, [this] { return marked_; }}, &window};
    const DialogSeen first(actions.takeFile, slow.fileName());
    EXPECT_EQ(first.parent, &window);
    EXPECT_EQ(first.folder, recordings.path());
    EXPECT_TRUE(first.filters.join(' ').contains("*.tsv"));
    const DialogSeen second(actions.takeFile);
    EXPECT_EQ(second.folder, others.path());
}

TEST_F(RunOutActionsTest, BehindTheDialogThePlaneThatWasAskedForIsCompensatedOrNone) {
    QSignalSpy reports(&bench_, &Bench::troubled);
    const QTemporaryDir folder;
    QFile slow(folder.filePath("slow.csv"));
    ASSERT_TRUE(slow.open(QIODevice::WriteOnly));
    slow.close();
    Plane& other = add(rotor());
    QTimer::singleShot(0, [this, &other] {
        bench_.removePlane(*plane_);
        plane_ = &other;
    });
    const DialogSeen dialog(actions_.takeFile, slow.fileName());
    ASSERT_EQ(reports.count(), 1);
    EXPECT_TRUE(
        reports[0][0].toString().endsWith(" is not open any more: no run-out is taken off"));
    EXPECT_FALSE(bench_.isWorking());
}

}  // namespace
}  // namespace Rotavue::Workbench
