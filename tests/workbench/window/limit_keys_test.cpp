#include "workbench/window/orbit_view.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/files/file_actions.h"

#include <QPointer>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>

namespace Rotavue::Workbench {
namespace {

/// The limits without a pointer. What the user does in each editor that opens is written down
/// beforehand, since the key that opens the first one returns when the last one is closed.
class LimitKeysTest : public WindowTest {
protected:
    using Deed = std::function<void(LimitEditor&)>;

    /// A view with four limits of their own: -80 to 60 across, -40 to 20 upright.
    OrbitView& openPlain() {
        OrbitView& view = open();
        Settings settings = withLimits(
            view.plane(), {.xMin = -80, .xMax = 60, .yMin = -40, .yMax = 20, .manual = true});
        settings[L"autoScaleType"] = L"1";
        bench().setSettings(view.plane(), settings);
        settle();
        return view;
    }

    void editByKey(OrbitView& view, std::vector<Deed> deeds) {
        view_ = &view;
        deeds_ = std::move(deeds);
        done_ = 0;
        view.setFocus();
        // An editor that nobody expects must not wait for ever.
        QTimer::singleShot(5000, &view, [&view] { view.editor().cancel(); });
        scheduleNext();
        press(Qt::Key_F2);
        EXPECT_EQ(done_, deeds_.size());
    }

    void scheduleNext() {
        QTimer::singleShot(0, view_, [this] {
            if (done_ == deeds_.size() || !view_->editor().isEditing()) return;
            const Deed deed = deeds_[done_++];
            if (done_ < deeds_.size()) scheduleNext();
            deed(view_->editor());
        });
    }

    static Deed type(const char* text, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        return [=](LimitEditor& editor) {
            QTest::keyClicks(&editor, text);
            QTest::keyClick(&editor, key, modifiers);
        };
    }

    static Deed expect(const char* text, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        return [=](LimitEditor& editor) {
            EXPECT_EQ(editor.text().toDouble(), QString(text).toDouble());
            QTest::keyClick(&editor, key, modifiers);
        };
    }

    OrbitView* view_ = nullptr;
    std::vector<Deed> deeds_;
    std::size_t done_ = 0;
};

TEST_F(LimitKeysTest, AKeyOpensTheFirstLimitAndReturnAcceptsIt) {
    OrbitView& view = openPlain();
    editByKey(view, {[](LimitEditor& editor) {
                  EXPECT_TRUE(editor.hasFocus());
                  EXPECT_EQ(editor.text().toDouble(), -80.0);
                  EXPECT_EQ(editor.selectedText(), editor.text());
                  QTest::keyClicks(&editor, "-90");
                  QTest::keyClick(&editor, Qt::Key_Return);
              }});
    const AxisLimits limits = axisLimits(view.plane());
    EXPECT_DOUBLE_EQ(limits.xMin, -90.0);
    EXPECT_DOUBLE_EQ(limits.xMax, 60.0);
    EXPECT_TRUE(view.hasFocus());
    EXPECT_FALSE(view.editor().isVisible());
}

TEST_F(LimitKeysTest, TabAcceptsAndGoesRoundTheFourLimits) {
    OrbitView& view = openPlain();
    editByKey(view, {type("-90", Qt::Key_Tab), type("70", Qt::Key_Tab), type("-50", Qt::Key_Tab),
                     type("30", Qt::Key_Tab), expect("-90", Qt::Key_Escape)});
    const AxisLimits limits = axisLimits(view.plane());
    EXPECT_DOUBLE_EQ(limits.xMin, -90.0);
    EXPECT_DOUBLE_EQ(limits.xMax, 70.0);
    EXPECT_DOUBLE_EQ(limits.yMin, -50.0);
    EXPECT_DOUBLE_EQ(limits.yMax, 30.0);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(LimitKeysTest, ShiftTabGoesBack) {
    OrbitView& view = openPlain();
    editByKey(view,
              {expect("-80", Qt::Key_Backtab, Qt::ShiftModifier),
               expect("20", Qt::Key_Backtab, Qt::ShiftModifier), type("-45", Qt::Key_Return)});
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).yMin, -45.0);
}

TEST_F(LimitKeysTest, AllLimitsOfOneGoAreOneStepOfUndo) {
    OrbitView& view = openPlain();
    const int steps = bench().undoStack().count();
    editByKey(view, {type("-90", Qt::Key_Tab), type("70", Qt::Key_Return)});
    EXPECT_EQ(bench().undoStack().count(), steps + 1);
    bench().undoStack().undo();
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMin, -80.0);
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMax, 60.0);
}

// -80 to 60 in 3 positions would show rounded numbers; touched by nobody they change nothing.
TEST_F(LimitKeysTest, WhatIsNotTouchedStaysAsItWasToTheLastDigit) {
    OrbitView& view = open();
    bench().setSettings(view.plane(), withLimits(view.plane(), {.xMin = -200.0 / 3,
                                                                .xMax = 200.0 / 3,
                                                                .yMin = -200.0 / 3,
                                                                .yMax = 200.0 / 3,
                                                                .manual = true}));
    const int steps = bench().undoStack().count();
    editByKey(view, {[](LimitEditor& editor) { QTest::keyClick(&editor, Qt::Key_Tab); },
                     [](LimitEditor& editor) { QTest::keyClick(&editor, Qt::Key_Return); }});
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMax, 200.0 / 3);
    EXPECT_EQ(bench().undoStack().count(), steps);
}

TEST_F(LimitKeysTest, AnAutomaticScaleBecomesManualWithTheFirstAcceptedLimit) {
    OrbitView& view = open();
    const int steps = bench().undoStack().count();
    ASSERT_FALSE(axisLimits(view.plane()).manual);
    editByKey(view, {type("150", Qt::Key_Return)});
    EXPECT_TRUE(axisLimits(view.plane()).manual);
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMax, 150.0);
    EXPECT_EQ(bench().undoStack().count(), steps + 1);
    bench().undoStack().undo();
    EXPECT_FALSE(axisLimits(view.plane()).manual);
}

TEST_F(LimitKeysTest, EscapeLeavesAnAutomaticScaleAutomatic) {
    OrbitView& view = open();
    const int steps = bench().undoStack().count();
    editByKey(view, {type("150", Qt::Key_Escape)});
    EXPECT_FALSE(axisLimits(view.plane()).manual);
    EXPECT_EQ(bench().undoStack().count(), steps);
    EXPECT_FALSE(bench().undoStack().canRedo());
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(LimitKeysTest, EscapeOnAnAutomaticScaleLeavesRedoAndTheSavedStateAlone) {
    OrbitView& view = open();
    bench().setCurves(view.plane(), {});
    bench().undoStack().setClean();
    bench().undoStack().undo();
    editByKey(view, {type("150", Qt::Key_Escape)});
    EXPECT_FALSE(axisLimits(view.plane()).manual);
    ASSERT_TRUE(bench().undoStack().canRedo());
    bench().undoStack().redo();
    EXPECT_TRUE(bench().undoStack().isClean());
}

// Return accepts a limit, and nothing else does: the editor stays open, with what was typed.
TEST_F(LimitKeysTest, WhatIsSavedBehindAnOpenEditorHasNoLimitThatIsNotAccepted) {
    OrbitView& view = open();
    const QTemporaryDir folder;
    const QString file = folder.filePath("v.rotavue");
    ASSERT_TRUE(window_.findChild<FileActions*>("files")->saveTo(file));
    bench().setSettings(view.plane(), with(view.plane(), L"graphType", L"1"));
    editByKey(view, {[&](LimitEditor& editor) {
                  QTest::keyClicks(&editor, "150");
                  QTest::keyClick(&editor, Qt::Key_S, Qt::ControlModifier);
                  const auto saved = readView(file.toStdString()).planes.at(0).setup;
                  EXPECT_EQ(saved.at("graphType"), "1");
                  const auto manual = saved.find("useManualMagnitudeLimits");
                  EXPECT_TRUE(manual == saved.end() || manual->second == "False");
                  EXPECT_FALSE(window_.isWindowModified());
                  QTest::keyClick(&editor, Qt::Key_Return);
              }});
    EXPECT_TRUE(window_.isWindowModified());
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMax, 150.0);
}

TEST_F(LimitKeysTest, ATileStaysUntilItsEditorHasReturned) {
    OrbitView& view = openPlain();
    const QPointer<OrbitView> tile(&view);
    editByKey(view, {[&](LimitEditor&) {
                  bench().showPlanes({}, 0.0);
                  // Whatever is posted and deleted in one go, the loop of the editor is below.
                  QCoreApplication::sendPostedEvents();
                  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                  EXPECT_TRUE(tile);
              }});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tile; }));
}

// The control's pointer was on the label; a label that stays lit would take the next click.
TEST_F(LimitKeysTest, NothingStaysLitBehindTheEditor) {
    OrbitView& view = openPlain();
    QWidget& elsewhere = *window_.statusBar();
    ASSERT_TRUE(putPointer(elsewhere, elsewhere.rect().center()));
    const QImage before = pictureOf(view);
    editByKey(view, {type("", Qt::Key_Tab), type("", Qt::Key_Escape)});
    EXPECT_EQ(differences(before, pictureOf(view)), 0);
}

TEST_F(LimitKeysTest, TabAlsoGoesOnFromALimitThatWasClicked) {
    OrbitView& view = openPlain();
    view_ = &view;
    // The first one from the top is the upper limit of y, the last of the round.
    deeds_ = {type("30", Qt::Key_Tab), type("-90", Qt::Key_Return)};
    const std::optional<QPoint> place = findLimit(view);
    ASSERT_TRUE(place);
    QTest::mouseMove(&view, *place);
    settle();
    scheduleNext();
    QTest::mouseClick(&view, Qt::LeftButton, {}, *place);
    settle();
    EXPECT_EQ(done_, 2U);
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).yMax, 30.0);
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).xMin, -90.0);
}

TEST_F(LimitKeysTest, APlaneMayBeClosedInTheMiddleOfIt) {
    OrbitView& view = openPlain();
    editByKey(view,
              {type("-90", Qt::Key_Tab), [&](LimitEditor&) { bench().removePlane(view.plane()); }});
    EXPECT_TRUE(bench().planes().empty());
}

TEST_F(LimitKeysTest, AKeyFitsAnAxisAsAClickOnItsStripDoes) {
    OrbitView& view = openPlain();
    view.setFocus();
    press(Qt::Key_F3);
    // The clearance, 200 across and upright, is part of what is fitted and reaches beyond the
    // orbit.
    const AxisLimits across = axisLimits(view.plane());
    EXPECT_DOUBLE_EQ(across.xMin, -100.0);
    EXPECT_DOUBLE_EQ(across.xMax, 100.0);
    EXPECT_DOUBLE_EQ(across.yMin, -40.0);
    EXPECT_DOUBLE_EQ(across.yMax, 20.0);
    press(Qt::Key_F3, Qt::ShiftModifier);
    const AxisLimits both = axisLimits(view.plane());
    EXPECT_DOUBLE_EQ(both.xMin, across.xMin);
    EXPECT_DOUBLE_EQ(both.yMin, -100.0);
    EXPECT_DOUBLE_EQ(both.yMax, 100.0);
    bench().undoStack().undo();
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).yMax, 20.0);
}

TEST_F(LimitKeysTest, OneScaleAlreadyIsSaid) {
    OrbitView& view = openPlain();
    press(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(axisLimits(view.plane()).areEqual());
    const int steps = bench().undoStack().count();
    press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(bench().undoStack().count(), steps);
    EXPECT_EQ(window_.statusBar()->currentMessage(), "The axes have one scale already.");
}

TEST_F(LimitKeysTest, AnAutomaticScaleFitsByItselfAndTheKeySaysSo) {
    OrbitView& view = open();
    view.setFocus();
    const int steps = bench().undoStack().count();
    press(Qt::Key_F3);
    EXPECT_EQ(bench().undoStack().count(), steps);
    EXPECT_FALSE(axisLimits(view.plane()).manual);
    EXPECT_TRUE(window_.statusBar()->currentMessage().contains("automatic"));
}

}  // namespace
}  // namespace Rotavue::Workbench
