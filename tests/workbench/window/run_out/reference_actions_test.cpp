#include "workbench/window/run_out/reference_actions.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/analysis/reference_orbit.h"
#include "workbench/recording/machine_file.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <cmath>
#include <filesystem>
#include <functional>

namespace Rotavue::Workbench {

namespace {

class ReferenceActionsTest : public BenchTest {
protected:
    std::filesystem::path at(const char* name) const {
        return std::filesystem::path(folder_.path().toStdString()) / name;
    }

    void save(const char* name) {
        actions_->saveTo(at(name));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !actions_->isSaving(); }));
    }

    static Recording withFile(Recording recording, const std::filesystem::path& file) {
        recording.file = file;
        return recording;
    }

    static QString qSpan(double from, double to) {
        return QString("%1 to %2 s").arg(from, 0, 'f', 2).arg(to, 0, 'f', 2);
    }

    /// Asks for the file; while the dialog is open something happens.
    void answer(const std::filesystem::path& file, const std::function<void()>& meanwhile) {
        QTimer::singleShot(0, [file, meanwhile] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            meanwhile();
            dialog->findChild<QLineEdit*>("fileNameEdit")
                ->setText(QString::fromStdString(file.string()));
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        actions_->save.trigger();
    }

    Plane* current() const {
        if (current_ != nullptr) return current_;
        return bench_.planes().empty() ? nullptr : bench_.planes()[0].get();
    }

    Plane* current_ = nullptr;  ///< null: the first one
    QTemporaryDir folder_;
    QWidget window_;
    std::optional<TimeSpan> marked_;
    QStringList told_;
    ReferenceActions* actions_ = new ReferenceActions(
        bench_, {[this] { return current(); }, [this] { return marked_; }},
        [this](const QString& line) { told_ += line; }, window_);
};

// Turn n begins at (n - 0.25) / 50 s: the last eight whole ones of the second are from turn 42, at
// 0.835 s, to turn 50, at 0.995 s.
TEST_F(ReferenceActionsTest, KeepsTheMeanOfTheTurnsAtTheCursorWhereNoneAreMarked) {
    add();
    EXPECT_TRUE(actions_->save.toolTip().contains("turns that are shown at the cursor"));
    save("reference.json");
    const ReferenceOrbit kept = loadReference(at("reference.json"));
    EXPECT_EQ(kept.orbit.averages, 8);
    EXPECT_NEAR(kept.orbit.x[0], 40.0, 1e-3);  // X is at its peak at the pulse
    EXPECT_NEAR(kept.orbit.speed, 3000.0, 1e-6);
    EXPECT_EQ(told_,
              QStringList{"Saved the mean of 8 turns, " + qSpan(0.835, 0.995) + ", of rotor as " +
                          QString::fromStdString(at("reference.json").string())});
    EXPECT_EQ(bench_.undoStack().count(), 1);  // the opening alone
}

// Those that begin at (11 - 0.25) / 50 = 0.215 s or later and end at (30 - 0.25) / 50 = 0.595 s.
TEST_F(ReferenceActionsTest, KeepsTheMarkedTurnsAlone) {
    add();
    marked_ = TimeSpan{0.2, 0.6};
    actions_->refresh();
    EXPECT_TRUE(actions_->save.toolTip().contains("of the marked stretch, 0.20 to 0.60 s"));
    save("reference.json");
    EXPECT_EQ(loadReference(at("reference.json")).orbit.averages, 19);
    EXPECT_TRUE(told_.value(0).contains("19 turns, " + qSpan(0.215, 0.595) + ", of rotor"));
}

TEST_F(ReferenceActionsTest, KeepsWhatThePlaneShows) {
    Plane& plane = add();
    bench_.showCompensated(plane, still(plane));
    save("reference.json");
    EXPECT_LT(std::abs(loadReference(at("reference.json")).orbit.x[0]), 0.1);
}

TEST_F(ReferenceActionsTest, WhatCannotBeSavedIsReported) {
    QSignalSpy troubled(&bench_, &Bench::troubled);
    add();
    save("no/such/folder/reference.json");
    marked_ = TimeSpan{0.5, 0.505};  // a quarter of a turn
    save("reference.json");
    ASSERT_EQ(troubled.count(), 2);
    EXPECT_TRUE(troubled[0][0].toString().contains("no/such/folder/reference.json"));
    EXPECT_TRUE(troubled[1][0].toString().startsWith("rotor: "));
    EXPECT_FALSE(std::filesystem::exists(at("reference.json")));
    EXPECT_TRUE(told_.isEmpty());
}

TEST_F(ReferenceActionsTest, NeverReplacesWhatAPlaneIsMadeFrom) {
    QSignalSpy troubled(&bench_, &Bench::troubled);
    add(withFile(rotor(), at("rotor.csv")));
    for (const char* name : {"rotor.csv", "rotor.machine.json"}) {
        actions_->saveTo(at(name));
        EXPECT_FALSE(actions_->isSaving());
        EXPECT_FALSE(std::filesystem::exists(at(name)));
    }
    EXPECT_EQ(troubled.count(), 2);
}

TEST_F(ReferenceActionsTest, IsOffWithoutAPlaneOrAKeyphasorAndSaysWhy) {
    EXPECT_TRUE(actions_->save.toolTip().endsWith(": nothing is open"));
    Recording still = rotor();
    still.angle.edit().clear();
    still.keyphasorKind = KeyphasorKind::None;
    Plane& plane = add(std::move(still));
    EXPECT_TRUE(actions_->save.toolTip().endsWith(": there is no keyphasor"));
    bench_.removePlane(plane);
    add();
    EXPECT_TRUE(actions_->save.isEnabled());
}

TEST_F(ReferenceActionsTest, CancelledItLetsTheNextOneBegin) {
    add();
    actions_->saveTo(at("first.json"));
    EXPECT_FALSE(actions_->save.isEnabled());
    bench_.cancelWork();
    EXPECT_FALSE(actions_->isSaving());
    EXPECT_TRUE(actions_->save.isEnabled());
    save("second.json");
    EXPECT_TRUE(std::filesystem::exists(at("second.json")));
    EXPECT_EQ(told_.value(told_.size() - 1).right(11), "second.json");
}

TEST_F(ReferenceActionsTest, IsWorkThatTheBenchTellsOf) {
    QSignalSpy worked(&bench_, &Bench::worked);
    QSignalSpy ended(&bench_, &Bench::workEnded);
    add(rotor(20.0));
    actions_->saveTo(at("reference.json"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !actions_->isSaving() && ended.count() > 0; }));
    for (const auto& one : worked)
        EXPECT_EQ(one[0].toString(), "the reference of rotor");
}

TEST_F(ReferenceActionsTest, BehindTheDialogItIsThePlaneThatWasAskedFor) {
    const Plane& asked = add(withFile(rotor(), at("a.csv")));
    Plane& other = add(withFile(rotor(), at("b.csv")));
    answer(at("reference.json"), [this, &other] { current_ = &other; });
    ASSERT_TRUE(QTest::qWaitFor([this] { return !actions_->isSaving(); }));
    const auto name = QString::fromStdString(bench_.titleOf(asked).text());
    EXPECT_TRUE(told_.value(0).contains(", of " + name + " as ")) << told_.value(0).toStdString();
}

TEST_F(ReferenceActionsTest, APlaneThatIsGoneBehindTheDialogIsToldOfAndNothingIsSaved) {
    QSignalSpy troubled(&bench_, &Bench::troubled);
    add(withFile(rotor(), at("a.csv")));
    add(withFile(rotor(), at("b.csv")));
    answer(at("reference.json"), [this] { bench_.removePlane(*bench_.planes()[0]); });
    ASSERT_EQ(troubled.count(), 1);
    EXPECT_EQ(troubled[0][0].toString(), "a is not open any more: no reference is saved");
    EXPECT_FALSE(std::filesystem::exists(at("reference.json")));
}

}  // namespace

}  // namespace Rotavue::Workbench
