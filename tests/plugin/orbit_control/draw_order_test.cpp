#include "tests/plugin/orbit_control/frame_test.h"

#include <cmath>
#include <functional>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// What comes before what in a frame, and what is left of one that ends early.
class DrawOrder : public FrameTest {
protected:
    /// Everything that a frame asks and draws.
    Lines frame() {
        return callsOf([&] { draw(); });
    }

    /// The place of the first line that has the text in it; the number of lines when none has.
    static std::ptrdiff_t placeOf(const Lines& lines, const std::string& text) {
        const auto found = std::ranges::find_if(
            lines, [&](const std::string& line) { return line.find(text) != std::string::npos; });
        return found - lines.begin();
    }

    static bool holds(const Lines& lines, const std::string& text) {
        return placeOf(lines, text) != std::ssize(lines);
    }

    static constexpr const char* GroupFault =
        "\"Raw orbit group does not contain the correct amount of channels.\"";
    static constexpr const char* Mismatch =
        "\"Bearing configuration between channels does not match.\"";
};

TEST_F(DrawOrder, RotationIsSetBeforeTheHostIsAsked) {
    control.hostControl = nullptr;
    key.viewRotation = 0.5;
    expectHostError(0x80004003, [&] { draw(); });
    EXPECT_EQ(key.graph.state().rotationSin, std::sin(0.5));
    EXPECT_EQ(key.graph.state().rotationCos, std::cos(0.5));
    EXPECT_FALSE(key.graph.state().layoutValid);
}

TEST_F(DrawOrder, ColoursAreTakenAndTheAreaIsLaidOutBeforeABearingIsRefused) {
    assignReference("a", L"um").properties[L"Orbit Y Angle"] = L"up";
    EXPECT_THROW(draw(), std::invalid_argument);
    EXPECT_EQ(key.graph.state().gridColor, 1U);
    EXPECT_EQ(key.graph.state().canvasRect, (Rectangle{0.0, 0.0, 300.0, 300.0}));
}

TEST_F(DrawOrder, FrameOfNothingWritesItsLimitsAndTitlesOnly) {
    Lines lines = drawn();
    std::erase_if(lines, [](const std::string& line) {
        return !line.starts_with("IHostCanvas.TextOut") &&
               !line.starts_with("IHostCanvas.TextRect");
    });
    // The four limits, -0 and 0 on either axis, and no mark between them; two titles without a
    // unit; no row of a legend. The plot runs from 60 to 240, a line is 16 and a character 8 wide.
    EXPECT_EQ(lines, (Lines{
                         R"(IHostCanvas.TextRect(44, 240, 60, 256, "-0", 256))",
                         R"(IHostCanvas.TextRect(232, 240, 240, 256, "0", 256))",
                         R"(IHostCanvas.TextOut(44, 256, "-0"))",
                         R"(IHostCanvas.TextOut(44, 68, "0"))",
                         R"-(IHostCanvas.TextRect(114, 256, 186, 272, "X axis ()", 256))-",
                         R"-(IHostCanvas.TextOut(28, 186, "Y axis ()"))-",
                     }));
}

TEST_F(DrawOrder, MismatchIsToldBeforeTheFrameAndNothingIsRead) {
    assignReference("a", L"um");
    assignReference("b", L"um").properties[L"Orbit X Angle"] = L"45";
    const Lines lines = frame();
    const std::ptrdiff_t told = placeOf(lines, Mismatch);
    const std::ptrdiff_t background = placeOf(lines, "IHostCanvas.Rectangle(60, 60, 240, 240)");
    const std::ptrdiff_t limit = placeOf(lines, "\"1.000\"");
    ASSERT_LT(limit, std::ssize(lines)) << "the limits of a new control";
    EXPECT_LT(told, background);
    EXPECT_LT(background, limit);
    for (const char* unasked : {"getDecimals", "isAcquiring", "getValue[", "getName", "axis"})
        EXPECT_FALSE(holds(lines, unasked)) << unasked;
}

TEST_F(DrawOrder, LimitsAreMeasuredBeforeTheFrameAndTheStripsAfterIt) {
    assignOrbit();  // limits of 1.1 * 10
    const Lines lines = frame();
    const std::ptrdiff_t limit = placeOf(lines, R"(IHostCanvas.TextWidth("-11"))");
    const std::ptrdiff_t background = placeOf(lines, "IHostCanvas.Rectangle(60, 60, 240, 240)");
    const std::ptrdiff_t strips = placeOf(lines, R"(IHostCanvas.TextHeight("Aj"))");
    const std::ptrdiff_t label = placeOf(lines, R"("-11", 256))");
    ASSERT_LT(label, std::ssize(lines));
    EXPECT_LT(limit, background);
    EXPECT_LT(background, strips);
    EXPECT_LT(strips, label) << "before the scale is drawn";
}

TEST_F(DrawOrder, FaultOfAGroupIsToldBetweenGroupsAndChannels) {
    assignGroup({});
    assignOrbit();
    assignReference("c", L"um");
    const Lines lines = frame();
    const std::ptrdiff_t told = placeOf(lines, GroupFault);
    EXPECT_LT(placeOf(lines, "IHostChannel.getName[orbit]"), told) << "after the last group";
    EXPECT_LT(told, placeOf(lines, "IHostChannel.getDecimals[c]")) << "before the first channel";
    EXPECT_LT(placeOf(lines, "IHostChannel.getDecimals[c]"), placeOf(lines, "Rectangle(60, 60"))
        << "and all is read before the frame is painted";
}

TEST_F(DrawOrder, FaultsOfManyGroupsAreToldOnce) {
    assignGroup({});
    assignGroup({std::nullopt, "tacho"});
    EXPECT_EQ(std::ranges::count_if(drawn(),
                                    [](const std::string& line) {
                                        return line.find(GroupFault) != std::string::npos;
                                    }),
              1);
}

TEST_F(DrawOrder, ChannelThatFailsLeavesTheDecimalsOfTheFrameBefore) {
    assignReference("a", L"um").decimals = 2;
    draw();
    channel("a").decimals = 5;
    assignChannel("b", L"Average").arraySize = 1;  // without an axis
    expectHostError(0x80004003, [&] { draw(); });
    EXPECT_EQ(key.graph.decimals(), 2) << "the most is kept once all are read";
}

/// Changes something as soon as the first plain channel is asked for its decimals.
class AfterTheCheck : public HostKit::CallWatcher {
public:
    explicit AfterTheCheck(std::function<void()> change) : change_(std::move(change)) {}

    void onCall(HostKit::Operation operation) override {
        if (operation == HostKit::operation("IHostChannel.getDecimals")) change_();
    }

private:
    std::function<void()> change_;
};

TEST_F(DrawOrder, LastBearingAppliedWins) {
    assignOrbit();
    assignReference("a", L"um");
    assignReference("b", L"um");
    AfterTheCheck change([&] {
        channel("a").properties[L"Orbit Tacho Angle"] = L"10";
        channel("b").properties[L"Orbit Tacho Angle"] = L"20";
    });
    host.gate.watch(&change, HostKit::allGroups());
    draw();
    EXPECT_EQ(key.graph.tachoAngle(), 20.0);
    EXPECT_EQ(key.bearing.tachoAngle, 20.0);
}

TEST_F(DrawOrder, PanIsTakenBackByEachFrame) {
    assignOrbit();
    for (int frames = 0; frames < 2; ++frames) {
        key.graph.panBy(5.0, 6.0);
        draw();
        EXPECT_EQ(key.graph.state().panX, 0.0);
        EXPECT_EQ(key.graph.state().panY, 0.0);
    }
}

TEST_F(DrawOrder, ChannelsWithoutACurveHaveNoSayInTheUnit) {
    assignReference("a", L"um");
    assignReference("raw", L"mil").properties[L"OrbitType"] = L"Raw";
    EXPECT_TRUE(hasText(drawn(), "X axis (um)"));
    host.description.host.acquiring = false;
    assignReference("unstored", L"mil").storageKind = 1;
    EXPECT_TRUE(hasText(drawn(), "X axis (um)"));
    channel("unstored").storageKind = 0;
    EXPECT_TRUE(hasText(drawn(), "X axis (?)"));
}

TEST_F(DrawOrder, ReadoutNeedsACurveButNoPoint) {
    control.onMouseEnter();
    control.onMouseMove({}, 120, 130);
    assignReference("a", L"um").properties[L"OrbitType"] = L"Raw";
    EXPECT_FALSE(holds(drawn(), "\"X= "));
    channel("a").properties[L"OrbitType"] = L"Reference";
    channel("a").arraySize = 0;
    const Lines lines = drawn();
    EXPECT_TRUE(holds(lines, "\"X= "));
    EXPECT_TRUE(holds(lines, "IHostCanvas.MoveTo(120, 114)")) << "a cross at the pointer, 16 high";
}

TEST_F(DrawOrder, GroupsAreAskedOnlyWhereNoChannelIsAssigned) {
    assignReference("a", L"um");
    const auto groupsAsked = [&] {
        const Lines lines = callsOf([&] { draw(); }, data());
        return linesOf(lines, "IHostVisualControl.getGroups").size();
    };
    EXPECT_EQ(groupsAsked(), 2U) << "by the bearing check and by the reading";
    host.description.assigned.channels.clear();
    assignOrbit();
    EXPECT_EQ(groupsAsked(), 3U) << "and to see whether anything is assigned";
}

TEST_F(DrawOrder, ClearanceAndBadgesStandWithoutACurve) {
    HostKit::ChannelDescription& raw = assignChannel("raw", L"Raw");
    raw.properties[L"Orbit Clearance Width"] = L"1";
    raw.properties[L"Orbit Clearance Height"] = L"1";
    key.graph.setManualLimits(1);
    key.graph.setDrawClearance(true);
    const Lines lines = drawn();
    // A radius of 0.5 within limits of -1 and 1, which lie 90 pixels from the centre at 150.
    const auto color = std::ranges::find(lines, "IHostPen.SetColor(16750848)");  // 0xFF9900
    ASSERT_NE(color, lines.end());
    EXPECT_EQ(*(color + 1), "IHostCanvas.MoveTo(195, 150)") << "its rightmost point";
    EXPECT_TRUE(hasText(lines, "X"));
    EXPECT_TRUE(hasText(lines, "T"));
}

TEST_F(DrawOrder, EveryKindWithoutDataHasItsLegend) {
    for (const wchar_t* type : {L"Average", L"Harmonic", L"", L"Reference", L"SubSync"}) {
        host.description.assigned.channels.clear();
        HostKit::ChannelDescription& described = assignReference("c", L"um");
        described.properties[L"OrbitType"] = type;
        described.sampleCount = 0;
        described.arraySize = 0;
        EXPECT_TRUE(hasText(drawn(), "Reference (um)")) << testing::PrintToString(type);
    }
    host.description.assigned.channels.clear();
    key.graph.setHistoryType(0);
    assignOrbit();
    EXPECT_TRUE(hasText(drawn(), "Shaft (um)")) << "a group by revolutions without its tacho";
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
