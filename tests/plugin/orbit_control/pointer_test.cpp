#include "tests/plugin/orbit_control/control_test.h"

#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {

/// Opens the gate of the view gestures, which nothing in the plug-in does.
struct OrbitGraphAccess {
    static void enableViewAdjust(OrbitGraph& graph) { graph.state_.viewAdjustEnabled = true; }
};

namespace {

constexpr std::uint8_t Left = 0;
constexpr std::uint8_t Right = 1;
constexpr Api::ShiftState NoShift{};

/// A frame of 300 by 300 pixels has been drawn with limits of -1 and 1 and no decimals. The plot
/// runs from 60 to 240, a text line is 16 pixels high and a character 8 wide, so that
///     xMin "-1" stands in (60, 240)..(76, 256), xMax "1" in (232, 240)..(240, 256),
///     yMin "-1" in (44, 224)..(60, 240), yMax "1" in (44, 60)..(60, 68),
///     the x strip is (60, 240)..(240, 256) and the y strip (44, 60)..(60, 240).
class Pointer : public ControlTest {
protected:
    Pointer() {
        key.graph.setManualLimits(1);
        draw();
    }

    void moveTo(std::int32_t x, std::int32_t y) { control.onMouseMove(NoShift, x, y); }

    std::vector<bool> hovered() const {
        std::vector<bool> flags;
        for (const AxisLimitLabel& label : key.graph.limitLabels())
            flags.push_back(label.hovered);
        return flags;
    }

    Range limits() const {
        return {key.graph.xMin(), key.graph.xMax(), key.graph.yMin(), key.graph.yMax()};
    }

    /// Clicks on a label and answers the editor with that text.
    Lines answer(const std::wstring& text, bool accepted = true) {
        host.description.host.editText = {accepted, text};
        return callsOf([&] { control.onMouseUp(Left, NoShift, 5, 6); });
    }

    void setDataExtents(double xMin, double xMax, double yMin, double yMax) {
        key.dataExtents = {};
        key.dataExtents.takeIn(xMin, yMin);
        key.dataExtents.takeIn(xMax, yMax);
    }
};

TEST_F(Pointer, EveryMoveAsksForAFrame) {
    EXPECT_EQ(callsOf([&] { moveTo(100, 110); }), Lines{"IHostVisualControl.invalidate()"});
    EXPECT_EQ(key.graph.state().pointer, (Point{100.0, 110.0}));
}

TEST_F(Pointer, AutoScaleHoversNothingAndStillRedraws) {
    key.graph.setManualLimits(0);
    EXPECT_EQ(callsOf([&] { moveTo(65, 245); }), Lines{"IHostVisualControl.invalidate()"});
    EXPECT_FALSE(key.graph.anyLimitLabelHovered());
    EXPECT_FALSE(key.graph.anyAxisStripHovered());
    EXPECT_EQ(answer(L"5"), Lines{}) << "no editor opens";
}

struct Hit {
    Point at;
    std::vector<bool> labels;
    bool xStrip;
    bool yStrip;
};

const Hit Hits[] = {
    {{65, 245}, {true, false, false, false}, true, false},
    {{235, 250}, {false, true, false, false}, true, false},
    {{50, 230}, {false, false, true, false}, false, true},
    {{50, 65}, {false, false, false, true}, false, true},
    {{60, 240}, {true, false, false, false}, true, true},   // the corner that four of them share
    {{76, 256}, {true, false, false, false}, true, false},  // edges belong to a box
    {{77, 256}, {false, false, false, false}, true, false},
    {{150, 257}, {false, false, false, false}, false, false},
    {{150, 150}, {false, false, false, false}, false, false},
};

TEST_F(Pointer, HoversTheFirstLabelAndEachStripByItself) {
    for (const Hit& hit : Hits) {
        moveTo(static_cast<std::int32_t>(hit.at.x), static_cast<std::int32_t>(hit.at.y));
        EXPECT_EQ(hovered(), hit.labels) << hit.at.x << ", " << hit.at.y;
        EXPECT_EQ(key.graph.xStripHovered(), hit.xStrip) << hit.at.x << ", " << hit.at.y;
        EXPECT_EQ(key.graph.yStripHovered(), hit.yStrip) << hit.at.x << ", " << hit.at.y;
    }
}

TEST_F(Pointer, FlagsStayAfterASwitchToAutoScale) {
    moveTo(65, 245);
    key.graph.setManualLimits(0);
    moveTo(150, 150);
    EXPECT_TRUE(key.graph.anyLimitLabelHovered());
    EXPECT_EQ(answer(L"5"), Lines{}) << "and do no harm";
}

TEST_F(Pointer, HoverNeedsAOneAndAReleaseAnythingButZero) {
    moveTo(65, 245);
    key.graph.setManualLimits(2);
    moveTo(50, 65);
    EXPECT_EQ(hovered(), (std::vector<bool>{true, false, false, false})) << "as it was";
    answer(L"-4");
    EXPECT_EQ(limits(), (Range{-4, 4, -4, 4}));
}

TEST_F(Pointer, LabelIsEditedInPlaceAtThePointOfTheClick) {
    moveTo(65, 245);
    EXPECT_EQ(answer(L"-4"), Lines{R"(IHostVisualControl.editText(5, 6, "-1") -> [true, "-4"])"});
    EXPECT_EQ(limits(), (Range{-4, 4, -4, 4})) << "absolute: all four take on the magnitude";
}

TEST_F(Pointer, LabelWinsOverTheStripBelowIt) {
    setDataExtents(-7, 7, -7, 7);
    moveTo(65, 245);
    ASSERT_TRUE(key.graph.xStripHovered());
    answer(L"3", false);
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1})) << "not accepted: nothing, not even the strip";
}

TEST_F(Pointer, CommaInTheAnswerIsAPoint) {
    moveTo(65, 245);
    answer(L"1,5");
    EXPECT_EQ(limits(), (Range{-1.5, 1.5, -1.5, 1.5}));
}

TEST_F(Pointer, AnswerPassesThroughA32BitFloat) {
    moveTo(65, 245);
    answer(L"0.1 mm");
    EXPECT_EQ(key.graph.xMax(), double{0.1F});
}

struct Edit {
    std::int32_t x;
    std::int32_t y;
    const wchar_t* text;
    Range limits;
};

TEST_F(Pointer, EachLabelEditsItsOwnLimit) {
    key.graph.setAutoScaleType(1);
    const Edit edits[] = {{65, 245, L"-3", {-3, 1, -1, 1}},
                          {235, 250, L"5", {-3, 5, -1, 1}},
                          {50, 230, L"-6", {-3, 5, -6, 1}},
                          {50, 65, L"8", {-3, 5, -6, 8}}};
    for (const Edit& edit : edits) {
        moveTo(edit.x, edit.y);
        answer(edit.text);
        EXPECT_EQ(limits(), edit.limits) << edit.x << ", " << edit.y;
    }
}

TEST_F(Pointer, LimitThatWouldMeetTheOtherOneIsRefused) {
    key.graph.setAutoScaleType(1);
    const Edit edits[] = {{65, 245, L"1", {}},
                          {235, 250, L"-1", {}},
                          {50, 230, L"1", {}},
                          {50, 65, L"-1", {}},
                          {50, 65, L"nan", {}}};
    for (const Edit& edit : edits) {
        moveTo(edit.x, edit.y);
        answer(edit.text);
        EXPECT_EQ(limits(), (Range{-1, 1, -1, 1})) << edit.x << ", " << edit.y;
    }
}

TEST_F(Pointer, RelativeScalingTakesOneLimitAndRefusesDisorder) {
    key.graph.setAutoScaleType(1);
    moveTo(65, 245);
    answer(L"-3");
    EXPECT_EQ(limits(), (Range{-3, 1, -1, 1}));
    answer(L"5");
    EXPECT_EQ(limits(), (Range{-3, 1, -1, 1})) << "5 is above xMax";
    moveTo(50, 65);
    answer(L"8");
    EXPECT_EQ(limits(), (Range{-3, 1, -1, 8}));
}

TEST_F(Pointer, TextThatIsNoNumberLeavesTheLimits) {
    moveTo(65, 245);
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"wide", "invalid stof argument"},
        {L"", "invalid stof argument"},
        {L"1e39", "stof argument out of range"}};
    for (const auto& [text, expected] : cases) {
        control.onMouseDown(Left, NoShift, 0, 0);
        try {
            answer(text);
            ADD_FAILURE();
        } catch (const std::logic_error& error) {
            EXPECT_STREQ(error.what(), expected);
        }
        EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
        EXPECT_FALSE(key.leftButtonHeld) << "the release had been noted";
    }
}

TEST_F(Pointer, ClickOnAStripFitsItsAxisToTheData) {
    setDataExtents(-7, 8, -9, 10);
    moveTo(150, 250);
    EXPECT_EQ(callsOf([&] { control.onMouseUp(Left, NoShift, 0, 0); }), Lines{});
    EXPECT_EQ(limits(), (Range{-7, 8, -1, 1}));
    moveTo(50, 150);
    control.onMouseUp(Right, NoShift, 0, 0);
    EXPECT_EQ(limits(), (Range{-7, 8, -9, 10})) << "with any button";
}

TEST_F(Pointer, ClickOnAStripOfACircleSetsBothAxesSquare) {
    key.graph.setGraphType(1);
    setDataExtents(-7, 8, -9, 4);
    moveTo(150, 250);
    control.onMouseUp(Left, NoShift, 0, 0);
    EXPECT_EQ(limits(), (Range{-9, 9, -9, 9}));
}

TEST_F(Pointer, ClickAfterABrokenFrameTakesItsUnsetExtentsAndTheNextOneMendsThem) {
    moveTo(150, 250);
    assignChannel("c", L"Average");  // without an axis
    channel("c").arraySize = 1;
    expectHostError(0x80004003, [&] { draw(); });
    control.onMouseUp(Left, NoShift, 0, 0);
    EXPECT_EQ(key.graph.xMin(), 1.7976931348623157e+308);
    EXPECT_EQ(key.graph.xMax(), -1.7976931348623157e+308);
    host.description.assigned.channels.clear();
    setDataExtents(-2, 2, -2, 2);
    control.onMouseUp(Left, NoShift, 0, 0);
    EXPECT_EQ(key.graph.xMin(), -2.0);
    EXPECT_EQ(key.graph.xMax(), 2.0);
}

TEST_F(Pointer, ClickElsewhereDoesNothing) {
    setDataExtents(-7, 8, -9, 10);
    moveTo(150, 150);
    EXPECT_EQ(callsOf([&] {
                  control.onMouseDown(Left, NoShift, 150, 150);
                  control.onMouseUp(Left, NoShift, 150, 150);
              }),
              Lines{});
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
}

TEST_F(Pointer, LeftButtonIsHeldFromPressToRelease) {
    control.onMouseDown(Left, NoShift, 0, 0);
    EXPECT_TRUE(key.leftButtonHeld);
    control.onMouseUp(Right, NoShift, 0, 0);
    EXPECT_TRUE(key.leftButtonHeld);
    control.onMouseUp(Left, NoShift, 0, 0);
    EXPECT_FALSE(key.leftButtonHeld);
    control.onMouseDown(Left, NoShift, 0, 0);
    control.onMouseDown(Right, NoShift, 0, 0);
    EXPECT_FALSE(key.leftButtonHeld) << "a press of another button lets go of it";
}

TEST_F(Pointer, IsInsideBetweenEnterAndLeave) {
    control.onMouseEnter();
    EXPECT_TRUE(key.graph.pointerInside());
    moveTo(10, 20);
    control.onMouseLeave();
    EXPECT_FALSE(key.graph.pointerInside());
    EXPECT_EQ(key.graph.state().pointer, (Point{0.0, 0.0}));
}

TEST_F(Pointer, FailingEditorLeavesTheLimits) {
    moveTo(65, 245);
    host.fail(HostKit::operation("IHostVisualControl.editText"));
    expectHostError(0x80004005, [&] { answer(L"9"); });
    EXPECT_EQ(limits(), (Range{-1, 1, -1, 1}));
}

TEST_F(ControlTest, StripsAndLabelsCannotBeHitBeforeAFrame) {
    key.graph.setManualLimits(1);
    control.onMouseMove(NoShift, 65, 245);
    EXPECT_FALSE(key.graph.anyLimitLabelHovered());
    EXPECT_FALSE(key.graph.anyAxisStripHovered());
    control.onMouseUp(Left, NoShift, 65, 245);
    EXPECT_EQ(key.graph.xMin(), -1.0);
}

TEST_F(ControlTest, MoveWithoutAHostKeepsThePointerAndIsAnInvalidPointer) {
    control.hostControl = nullptr;
    expectHostError(0x80004003, [&] { control.onMouseMove(NoShift, 3, 4); });
    EXPECT_EQ(key.graph.state().pointer, (Point{3.0, 4.0}));
}

/// The gestures of the view, which are complete behind a gate that stays closed.
class ViewGesture : public ControlTest {
protected:
    void open() { OrbitGraphAccess::enableViewAdjust(key.graph); }

    static constexpr double Pi = 3.141592653589793;
    static constexpr double Step = Pi / 128;
};

TEST_F(ViewGesture, NothingHappensBehindTheClosedGate) {
    control.onMouseDown(Left, NoShift, 10, 10);
    control.onMouseMove(NoShift, 10, 10);
    control.onMouseMove(NoShift, 60, 60);
    control.onMouseWheel(NoShift, 0, 0, true);
    control.onMouseWheel(Api::ShiftState::fromWord(4), 0, 0, true);
    EXPECT_EQ(key.viewZoom, 1.0);
    EXPECT_EQ(key.viewRotation, 0.0);
    EXPECT_EQ(key.lastPointer, (Point{0.0, 0.0}));
    EXPECT_EQ(key.graph.state().panX, 0.0);
    EXPECT_EQ(key.graph.state().scaleX, 1.0);
    EXPECT_EQ(key.graph.state().rotationSin, 0.0);
}

TEST_F(ViewGesture, WheelZoomsByATenthBetweenItsBounds) {
    open();
    control.onMouseWheel(NoShift, 0, 0, true);
    EXPECT_DOUBLE_EQ(key.viewZoom, 1.1);
    EXPECT_EQ(key.graph.state().scaleX, key.viewZoom);
    EXPECT_EQ(key.graph.state().scaleY, key.viewZoom);
    control.onMouseWheel(NoShift, 0, 0, false);
    EXPECT_DOUBLE_EQ(key.viewZoom, 0.99) << "a tenth of 1.1";
    key.viewZoom = 9.5;
    control.onMouseWheel(NoShift, 0, 0, true);
    EXPECT_EQ(key.viewZoom, 10.0);
    key.viewZoom = 0.105;
    control.onMouseWheel(NoShift, 0, 0, false);
    EXPECT_EQ(key.viewZoom, 0.1);
}

TEST_F(ViewGesture, WheelTurnsWithTheThirdFlag) {
    open();
    const Api::ShiftState third = Api::ShiftState::fromWord(4);
    control.onMouseWheel(third, 0, 0, false);
    EXPECT_EQ(key.viewRotation, Step);
    EXPECT_EQ(key.viewZoom, 1.0);
    EXPECT_EQ(key.graph.state().rotationSin, std::sin(Step));
    EXPECT_EQ(key.graph.state().rotationCos, std::cos(Step));
    control.onMouseWheel(third, 0, 0, true);
    control.onMouseWheel(third, 0, 0, true);
    EXPECT_EQ(key.viewRotation, -Step);
}

TEST_F(ViewGesture, ShaftThatRunsClockwiseTurnsTheWheelRound) {
    key.graph.setRotationDirection(1);
    key.turnView(true);
    EXPECT_EQ(key.viewRotation, Step);
}

TEST_F(ViewGesture, TurnJumpsOverTheSeam) {
    key.viewRotation = Pi - Step / 2;
    key.turnView(false);
    EXPECT_EQ(key.viewRotation, -Pi) << "and loses the excess";
    key.turnView(true);
    EXPECT_EQ(key.viewRotation, Pi);
    key.viewRotation = Pi - Step;
    key.turnView(false);
    EXPECT_EQ(key.viewRotation, -Pi) << "pi itself is beyond the seam";
}

TEST_F(ViewGesture, DragPansByTheDistanceInDataOfTheZoom) {
    open();
    key.viewZoom = 2.0;
    control.onMouseDown(Left, NoShift, 10, 20);
    control.onMouseMove(NoShift, 10, 20);
    EXPECT_EQ(key.graph.state().panX, 0.0) << "nothing to measure from yet";
    control.onMouseMove(NoShift, 16, 12);
    EXPECT_EQ(key.graph.state().panX, 3.0);
    EXPECT_EQ(key.graph.state().panY, -4.0);
    control.onMouseUp(Left, NoShift, 16, 12);
    control.onMouseMove(NoShift, 90, 90);
    EXPECT_EQ(key.graph.state().panX, 3.0) << "no button, no drag";
    EXPECT_EQ(key.lastPointer, (Point{90.0, 90.0}));
}

TEST_F(ViewGesture, DragFromTheOriginIsNotSeen) {
    control.onMouseDown(Left, NoShift, 0, 0);
    key.dragView({0.0, 0.0});
    key.dragView({5.0, 5.0});
    EXPECT_EQ(key.graph.state().panX, 0.0) << "a last position of 0, 0 counts as none";
    key.dragView({7.0, 5.0});
    EXPECT_EQ(key.graph.state().panX, 2.0);
}

TEST_F(ViewGesture, NextFrameTakesThePanBackAndDrawsNoRotation) {
    open();
    describeOrbit("orbit", {1.0, 2.0}, {3.0, 4.0});
    assignGroup({"orbit"});
    key.graph.setHistoryType(1);
    const Lines before = callsOf([&] { draw(); }, drawing());
    key.graph.panBy(50.0, 50.0);
    key.viewRotation = 1.0;
    EXPECT_NE(before, callsOf([&] { draw(); }, drawing()))
        << "the frame that takes the pan back was laid out with it";
    EXPECT_EQ(key.graph.state().panX, 0.0);
    EXPECT_EQ(before, callsOf([&] { draw(); }, drawing()));
    EXPECT_EQ(key.graph.state().rotationCos, std::cos(1.0));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
