#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/docks/step_run.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTabWidget>
#include <QWheelEvent>

namespace Rotavue::Workbench {
namespace {

/// What a user does to the panel's number boxes, and what one step of undo takes back of it.
class UndoRunsTest : public WindowTest {
protected:
    /// The box for the number of ticks, with the focus and at 5.
    QSpinBox& ticks() {
        auto& box = *window_.findChild<QWidget*>("propertyDock")->findChild<QSpinBox*>("TickCount");
        EXPECT_TRUE(box.isVisible());
        box.setFocus();
        EXPECT_EQ(box.value(), 5);
        return box;
    }

    static void turnWheel(QWidget& widget, int clicks) {
        const QPointF middle = widget.rect().center();
        for (int i = 0; i < clicks; ++i) {
            QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&widget, &event);
        }
    }

    int steps() { return bench().undoStack().count(); }
    void undo() { action("undo").trigger(); }
};

TEST_F(UndoRunsTest, AnArrowThatIsHeldIsOneStep) {
    open();
    QSpinBox& box = ticks();
    const int before = steps();
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.value(), 9);
    EXPECT_EQ(steps(), before + 1);
    bench().undoStack().undo();
    EXPECT_EQ(box.value(), 5);
}

TEST_F(UndoRunsTest, ClicksOfTheWheelAreOneStep) {
    open();
    QSpinBox& box = ticks();
    const int before = steps();
    turnWheel(box, 3);
    EXPECT_EQ(box.value(), 8);
    EXPECT_EQ(steps(), before + 1);
}

TEST_F(UndoRunsTest, TypedDigitsAreOneStep) {
    open();
    QSpinBox& box = ticks();
    const int before = steps();
    box.selectAll();
    QTest::keyClicks(&box, "12");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(steps(), before + 1);
    bench().undoStack().undo();
    EXPECT_EQ(box.value(), 5);
}

TEST_F(UndoRunsTest, UpAndDownAgainIsNothingToUndo) {
    open();
    QSpinBox& box = ticks();
    const int before = steps();
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(steps(), before);
}

TEST_F(UndoRunsTest, LeavingTheBoxEndsTheRun) {
    OrbitView& view = open();
    QSpinBox& box = ticks();
    const int before = steps();
    QTest::keyClick(&box, Qt::Key_Up);
    view.setFocus();
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(steps(), before + 2);
    bench().undoStack().undo();
    EXPECT_EQ(box.value(), 6);
}

TEST_F(UndoRunsTest, AfterAnUndoANewRunBegins) {
    open();
    QSpinBox& box = ticks();
    const int before = steps();
    QTest::keyClick(&box, Qt::Key_Up);
    bench().undoStack().undo();
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(steps(), before + 1);
    bench().undoStack().undo();
    EXPECT_EQ(box.value(), 5);
}

// Two runs of the same box on two planes would otherwise become one.
TEST_F(UndoRunsTest, ChoicesOfAListAreEachAStep) {
    open();
    const int before = steps();
    auto& box =
        *window_.findChild<QWidget*>("propertyDock")->findChild<QComboBox*>("AutoScaleType");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(steps(), before + 2);
}

TEST_F(UndoRunsTest, ARestEndsTheRun) {
    QSpinBox box;
    int runs = 0;
    StepRun quick([&] { return ++runs; }, 60'000);
    EXPECT_EQ(quick.numberFor(&box), quick.numberFor(&box));
    StepRun rested([&] { return ++runs; }, 0);
    const int first = rested.numberFor(&box);
    QTest::qWait(5);
    EXPECT_NE(rested.numberFor(&box), first);
}

TEST_F(UndoRunsTest, AnotherBoxEndsTheRun) {
    QSpinBox one;
    QSpinBox other;
    int runs = 0;
    StepRun run([&] { return ++runs; });
    const int first = run.numberFor(&one);
    EXPECT_NE(run.numberFor(&other), first);
    EXPECT_NE(run.numberFor(&one), first);
}

}  // namespace
}  // namespace Rotavue::Workbench
