#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/docks/step_run.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTabWidget>
#include <QWheelEvent>

#include <functional>
#include <initializer_list>

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

    static void keys(QSpinBox& box, std::initializer_list<Qt::Key> pressed) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(&box, key);
    }

    int steps() { return bench().undoStack().index(); }
    void undo() { bench().undoStack().undo(); }
};

TEST_F(UndoRunsTest, WhatIsDoneInOneGoIsOneStep) {
    OrbitView& view = open();
    bench().setSettings(view.plane(), with(view.plane(), L"tickCount", L"5"));
    bench().undoStack().clear();
    const struct {
        const char* name;
        std::function<void(QSpinBox&)> act;
        int steps;   ///< of undo, for what was done
        int value;   ///< in the end
        int undone;  ///< after one step back
    } cases[] = {
        {"an arrow that is held",
         [](QSpinBox& box) {
             keys(box, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up});
         },
         1, 9, 5},
        {"clicks of the wheel", [](QSpinBox& box) { turnWheel(box, 3); }, 1, 8, 5},
        {"typed digits",
         [](QSpinBox& box) {
             box.selectAll();
             QTest::keyClicks(&box, "12");
             keys(box, {Qt::Key_Return});
         },
         1, 12, 5},
        {"up and down again",
         [](QSpinBox& box) {
             keys(box, {Qt::Key_Up, Qt::Key_Down});
         },
         0, 5, 5},
        {"leaving the box between",
         [&](QSpinBox& box) {
             keys(box, {Qt::Key_Up});
             view.setFocus();
             box.setFocus();
             keys(box, {Qt::Key_Up});
         },
         2, 7, 6},
        {"after an undo",
         [this](QSpinBox& box) {
             keys(box, {Qt::Key_Up});
             undo();
             keys(box, {Qt::Key_Up, Qt::Key_Up});
         },
         1, 7, 5},
    };
    for (const auto& one : cases) {
        QSpinBox& box = ticks();
        const int before = steps();
        one.act(box);
        EXPECT_EQ(box.value(), one.value) << one.name;
        EXPECT_EQ(steps(), before + one.steps) << one.name;
        if (one.steps > 0) undo();
        EXPECT_EQ(box.value(), one.undone) << one.name;
        while (steps() > 0 && box.value() != 5)
            undo();
        view.setFocus();
    }
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
