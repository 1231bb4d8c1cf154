#include "workbench/window/scale_lock.h"

#include "tests/workbench/window/window_fixture.h"

#include <QCheckBox>
#include <QTimer>

namespace Rotavue::Workbench {
namespace {

class ScaleLockTest : public WindowTest {
protected:
    /// A bearing whose orbit is as many times as large as that of `rotor`.
    static Recording grown(const std::string& point, double factor) {
        Recording recording = rotor(point);
        for (auto* values : {&recording.x, &recording.y})
            for (double& value : values->edit())
                value *= factor;
        recording.machine.clearanceWidth = recording.machine.clearanceHeight = 0.0;
        return recording;
    }

    void openTwo() {
        small_ = &open(grown("Bearing 1", 1.0)).plane();
        large_ = &open(grown("Bearing 2", 2.0)).plane();
        ASSERT_LT(axisLimits(*small_).xMax, axisLimits(*large_).xMax);
    }

    void setLimit(Plane& plane, double limit) {
        bench().setSettings(plane, withLimits(plane, {-limit, limit, -limit, limit, true}),
                            "limits");
    }

    bool isLocked() { return action("lockScale").isChecked(); }

    Plane* small_ = nullptr;
    Plane* large_ = nullptr;
};

TEST_F(ScaleLockTest, AKeyGivesAllPlanesTheLimitsThatHoldEachOfThem) {
    openTwo();
    const AxisLimits largest = axisLimits(*large_);
    const int steps = bench().undoStack().count();
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(isLocked());
    EXPECT_TRUE(axisLimits(*small_).manual);
    EXPECT_DOUBLE_EQ(axisLimits(*small_).xMax, largest.xMax);
    EXPECT_EQ(axisLimits(*small_), axisLimits(*large_));
    EXPECT_EQ(bench().undoStack().count(), steps + 1);
    bench().undoStack().undo();
    EXPECT_FALSE(axisLimits(*small_).manual);
    EXPECT_FALSE(axisLimits(*large_).manual);
}

TEST_F(ScaleLockTest, ManualLimitsOfTheCurrentPlaneAreTheModel) {
    openTwo();
    setLimit(*large_, 300.0);
    setLimit(*small_, 50.0);
    window_.tiles().setCurrent(small_);
    action("lockScale").trigger();
    EXPECT_DOUBLE_EQ(axisLimits(*large_).yMax, 50.0);
}

TEST_F(ScaleLockTest, ALimitEditedInOneTileIsThatOfAllAndOneStepOfUndo) {
    openTwo();
    setLimit(*large_, 100.0);
    action("lockScale").trigger();
    const int steps = bench().undoStack().count();
    OrbitView& view = *window_.tiles().viewOf(small_);
    window_.tiles().setCurrent(small_);
    QTimer::singleShot(0, &view, [&] {
        QTest::keyClicks(&view.editor(), "140");
        QTest::keyClick(&view.editor(), Qt::Key_Return);
    });
    action("editLimits").trigger();
    EXPECT_DOUBLE_EQ(axisLimits(*small_).xMax, 140.0);
    EXPECT_DOUBLE_EQ(axisLimits(*large_).xMax, 140.0);
    EXPECT_EQ(bench().undoStack().count(), steps + 1);
    bench().undoStack().undo();
    EXPECT_DOUBLE_EQ(axisLimits(*small_).xMax, 100.0);
    EXPECT_DOUBLE_EQ(axisLimits(*large_).xMax, 100.0);
}

TEST_F(ScaleLockTest, WhatIsNoLimitStaysThatOfThePlane) {
    openTwo();
    action("lockScale").trigger();
    bench().setSettings(*small_, with(*small_, L"revolutions", L"3"));
    EXPECT_EQ(small_->settings().at(L"revolutions"), L"3");
    EXPECT_EQ(large_->settings().at(L"revolutions"), L"8");
}

TEST_F(ScaleLockTest, UnlockedLimitsAreEachPlanesOwnAgain) {
    openTwo();
    action("lockScale").trigger();
    action("lockScale").trigger();
    const double before = axisLimits(*large_).xMax;
    setLimit(*small_, 33.0);
    EXPECT_DOUBLE_EQ(axisLimits(*large_).xMax, before);
}

TEST_F(ScaleLockTest, AnAutomaticScaleInOnePlaneReleasesTheLock) {
    openTwo();
    action("lockScale").trigger();
    bench().setSettings(*small_, with(*small_, L"useManualMagnitudeLimits", L"False"));
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(axisLimits(*large_).manual);
}

TEST_F(ScaleLockTest, PlanesOfAnotherUnitShareAScaleOfTheirOwn) {
    openTwo();
    Recording mils = grown("Bearing 3", 0.1);
    mils.machine.unit = "mil";
    Plane& other = open(mils).plane();
    const double before = axisLimits(other).xMax;
    window_.tiles().setCurrent(large_);
    action("lockScale").trigger();
    EXPECT_DOUBLE_EQ(axisLimits(other).xMax, before);
    EXPECT_TRUE(axisLimits(other).manual);
    setLimit(*large_, 250.0);
    EXPECT_DOUBLE_EQ(axisLimits(*small_).xMax, 250.0);
    EXPECT_DOUBLE_EQ(axisLimits(other).xMax, before);
}

TEST_F(ScaleLockTest, APlaneThatComesLaterGetsTheScale) {
    openTwo();
    setLimit(*large_, 120.0);
    action("lockScale").trigger();
    Plane& late = open(grown("Bearing 3", 0.5)).plane();
    settle();
    EXPECT_DOUBLE_EQ(axisLimits(late).xMax, 120.0);
}

TEST_F(ScaleLockTest, AnEmptyBenchHasNoLock) {
    openTwo();
    action("lockScale").trigger();
    bench().removePlane(*large_);
    bench().removePlane(*small_);
    EXPECT_FALSE(isLocked());
    EXPECT_FALSE(action("lockScale").isEnabled());
}

}  // namespace
}  // namespace Rotavue::Workbench
