#include "tests/plugin/orbit_control/frame_test.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

class DrawCycle : public FrameTest {};

TEST_F(DrawCycle, NothingAssignedGivesAnEmptyFrame) {
    const Lines lines = drawn();
    EXPECT_EQ(key.dataExtents.range(), (Range{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(key.graph.xMin(), 0.0);
    EXPECT_TRUE(std::signbit(key.graph.xMin())) << "-0 to 0";
    EXPECT_FALSE(std::signbit(key.graph.xMax()));
    EXPECT_TRUE(hasText(lines, "X axis ()"));
    EXPECT_FALSE(hasText(lines, "X")) << "no badge of a sensor";
    EXPECT_FALSE(hasText(lines, "T"));
    EXPECT_EQ(lines.back(), "IHostFont.SetStyle(0)");
}

TEST_F(DrawCycle, AsksForTheAssignmentAnewAtEachStep) {
    const Lines channels{R"(IHostVisualControl.getChannels() -> "channels")",
                         R"(IHostChannelCollection.getCount() -> 0)"};
    const Lines groups{R"(IHostVisualControl.getGroups() -> "groups")",
                       R"(IHostGroupCollection.getCount() -> 0)"};
    Lines expected;
    // layout; bearing check; groups, then channels; is anything assigned?
    for (const Lines* part :
         {&channels, &channels, &groups, &groups, &channels, &channels, &groups}) {
        expected.insert(expected.end(), part->begin(), part->end());
    }
    EXPECT_EQ(callsOf([&] { draw(); }, data()), expected);
}

TEST_F(DrawCycle, RawOrbitIsDrawnToThePixel) {
    assignOrbit();
    // Limits of 1.1 * 10 = 11 on both axes, the plot from 60 to 240: x at 150 + x / 11 * 90, y at
    // 150 - y / 11 * 90, truncated. 7 is 57.27 from the centre, 10 is 81.81.
    const Lines lines = drawn();
    const auto color = std::ranges::find(lines, "IHostPen.SetColor(255)");
    ASSERT_NE(color, lines.end());
    EXPECT_EQ(Lines(color + 1, color + 6), (Lines{
                                               "IHostCanvas.MoveTo(207, 92)",
                                               "IHostCanvas.LineTo(150, 231)",
                                               "IHostCanvas.LineTo(68, 150)",
                                               "IHostCanvas.LineTo(150, 68)",
                                               "IHostCanvas.LineTo(231, 150)",
                                           }));
    EXPECT_EQ(key.dataExtents.range(), (Range{-10.0, 10.0, -10.0, 10.0}));
}

TEST_F(DrawCycle, FramePaintsInThisOrder) {
    assignOrbit();
    channel("orbit").properties[L"Orbit Clearance Width"] = L"10";
    channel("orbit").properties[L"Orbit Clearance Height"] = L"10";
    key.graph.setDrawClearance(true);
    control.onMouseEnter();
    control.onMouseMove({}, 150, 150);
    const Lines lines = drawn();
    const std::vector<std::string> marks = {
        "IHostCanvas.Rectangle(60, 60, 240, 240)",  // background of the plot
        "\"-11\"",                                  // a scale label
        "\"X axis (um)\"",                          // the axis title
        "IHostCanvas.LineTo(150, 231)",             // the trace
        "\"X= ",                                    // the readout
        "IHostPen.SetColor(16750848)",              // the clearance
        "\"X\"",                                    // the badge of a sensor
        "\"Shaft (um)\"",                           // the legend
        "IHostFont.SetStyle(0)",
    };
    auto from = lines.begin();
    for (const std::string& mark : marks) {
        from = std::find_if(from, lines.end(), [&](const std::string& line) {
            return line.find(mark) != std::string::npos;
        });
        ASSERT_NE(from, lines.end()) << mark << " in its place";
    }
    EXPECT_EQ(from + 1, lines.end());
}

TEST_F(DrawCycle, WidthAndHeightStandInThePlacesOfRightAndBottom) {
    Api::DrawContext frame = context();
    frame.x = 20;
    frame.y = 10;
    control.draw(frame);
    EXPECT_EQ(key.graph.state().canvasRect, (Rectangle{20.0, 10.0, 300.0, 300.0}));
}

TEST_F(DrawCycle, LegendLinesGetRoomForEachPlainChannel) {
    key.graph.setSingleAxis(false);
    for (const std::string id : {"a", "b", "c", "d", "e"})
        assignChannel(id, L"Raw");
    draw();
    // Six lines of 16 pixels need 96 where 40 are free: the side of 220 shrinks by 112, less the 40
    // of the margin that is lost.
    EXPECT_EQ(widthOf(key.graph.state().graphRect), 68.0);
}

TEST_F(DrawCycle, TakesTheColoursOfTheFrame) {
    draw();
    EXPECT_TRUE(key.graph.state().darkBackground);
    Api::DrawContext frame = context();
    frame.backgroundColor = 0xFFFFFF;
    control.draw(frame);
    EXPECT_FALSE(key.graph.state().darkBackground);
    EXPECT_EQ(key.graph.state().backgroundColor, 0xFFFFFFU);
    EXPECT_EQ(key.graph.state().gridColor, 1U);
    EXPECT_EQ(key.graph.state().textColor, 2U);
    EXPECT_EQ(key.graph.state().axisColor, 3U);
    EXPECT_EQ(key.graph.state().borderColor, 4U);
}

TEST_F(DrawCycle, BearingsThatDifferEndTheFrameAfterItsScale) {
    assignReference("a", L"um");
    draw();
    assignReference("b", L"um").properties[L"Orbit X Angle"] = L"45";
    const Lines lines = drawn();
    EXPECT_TRUE(hasText(lines, "Bearing configuration between channels does not match."));
    EXPECT_TRUE(hasText(lines, "-4")) << "the limits of the frame before, -4.4 without decimals";
    EXPECT_NE(std::ranges::find(lines, "IHostCanvas.Rectangle(60, 60, 240, 240)"), lines.end());
    EXPECT_FALSE(hasText(lines, "X axis (um)"));
    EXPECT_FALSE(hasText(lines, "X"));
    EXPECT_FALSE(hasText(lines, "Reference (um), "));
    EXPECT_NE(lines.back(), "IHostFont.SetStyle(0)");
}

TEST_F(DrawCycle, MismatchKeepsTheLabelsAndExtentsOfTheFrameBefore) {
    assignReference("a", L"um");
    draw();
    const Rectangle box = key.graph.limitLabels()[1].box;
    assignReference("b", L"um").properties[L"Orbit X Angle"] = L"45";
    Api::DrawContext frame = context();
    frame.width = 500;
    frame.height = 500;
    control.draw(frame);
    EXPECT_EQ(key.graph.limitLabels()[1].box, box) << "not laid out for this frame";
    EXPECT_EQ(key.dataExtents.range(), (Range{3.0, 3.0, 4.0, 4.0}));
}

TEST_F(DrawCycle, UnusableGroupIsToldOfAndTheOthersAreDrawn) {
    assignGroup({});
    assignOrbit();
    const Lines lines = drawn();
    EXPECT_TRUE(hasText(lines, "Raw orbit group does not contain the correct amount of channels."));
    EXPECT_NE(std::ranges::find(lines, "IHostCanvas.LineTo(150, 231)"), lines.end());
    EXPECT_TRUE(hasText(lines, "Shaft (um)"));
    host.description.assigned.groups.erase(host.description.assigned.groups.begin());
    EXPECT_FALSE(hasText(drawn(),
                         "Raw orbit group does not contain the correct amount of "
                         "channels."));
}

TEST_F(DrawCycle, DecimalsAreTheMostOfThePlainChannels) {
    EXPECT_EQ(key.graph.decimals(), 3);
    assignOrbit().decimals = 5;
    draw();
    EXPECT_EQ(key.graph.decimals(), 0) << "groups have no say";
    assignReference("a", L"um").decimals = 2;
    assignReference("b", L"um").decimals = -4;
    assignChannel("raw", L"Raw").decimals = 1;
    draw();
    EXPECT_EQ(key.graph.decimals(), 2);
    channel("a").decimals = -1;
    channel("raw").decimals = 0;
    draw();
    EXPECT_EQ(key.graph.decimals(), 0) << "the maximum starts at 0";
}

TEST_F(DrawCycle, ChannelWithoutStoredDataStillHasABearingAndDecimals) {
    host.description.host.acquiring = false;
    HostKit::ChannelDescription& described = assignReference("c", L"um");
    described.storageKind = 1;
    described.decimals = 2;
    const Lines lines = drawn();
    EXPECT_EQ(key.graph.xAngle(), 90.0);
    EXPECT_EQ(key.graph.decimals(), 2);
    EXPECT_FALSE(hasText(lines, "Reference (um)")) << "but no curve";
    EXPECT_TRUE(hasText(lines, "X")) << "the badges stand without one";
    host.description.host.acquiring = true;
    EXPECT_TRUE(hasText(drawn(), "Reference (um)"));
}

TEST_F(DrawCycle, PlainChannelIsAskedInThisOrder) {
    assignChannel("c", L"Raw");
    host.description.host.acquiring = false;
    channel("c").storageKind = 0;
    Lines calls = callsOf([&] { draw(); }, data());
    const auto decimals = std::ranges::find(calls, "IHostChannel.getDecimals[c]() -> 0");
    ASSERT_NE(decimals, calls.end());
    calls.erase(calls.begin(), decimals);
    std::erase_if(calls, [](const std::string& line) {
        return line.starts_with("IHostProperties.getValue(\"Orbit ");
    });
    calls.resize(6);
    EXPECT_EQ(calls, (Lines{
                         R"(IHostChannel.getDecimals[c]() -> 0)",
                         R"(IHostChannel.getProperties[c]() -> "properties")",
                         R"(IHostApp.isAcquiring() -> false)",
                         R"(IHostChannel.getStorageKind[c]() -> 0)",
                         R"(IHostChannel.getProperties[c]() -> "properties")",
                         R"(IHostProperties.getValue("OrbitType") -> "Raw")",
                     }));
}

TEST_F(DrawCycle, EachKindOfChannelIsReadByItsOwnReader) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"Average", "IHostAxis.getStep"},
        {L"Harmonic", "IHostProperties.getValue(\"Orbit Amplitude\")"},
        {L"", "IHostData.isWholeDataset"},
        {L"SubSync", "IHostChannel.getSampleCounter[c]"},
    };
    for (const auto& [type, mark] : cases) {
        host.description.assigned.channels.clear();
        assignReference("c", L"um").properties[L"OrbitType"] = type;
        channel("c").arraySize = 2;
        channel("c").sampleCount = 9;
        channel("c").axes = {{{0.0, 1.0}}};
        const Lines calls = callsOf([&] { draw(); }, data());
        EXPECT_FALSE(linesOf(calls, mark).empty()) << mark;
        EXPECT_EQ(linesOf(calls, "IHostChannel.getName").size(), 1U) << mark;
    }
}

TEST_F(DrawCycle, RawChannelReadsNothingAndHasNoLegend) {
    assignReference("c", L"um").properties[L"OrbitType"] = L"Raw";
    const Lines calls = callsOf([&] { draw(); });
    EXPECT_TRUE(linesOf(calls, "IHostChannel.getValue").empty());
    EXPECT_TRUE(linesOf(calls, "IHostChannel.getName").empty());
    EXPECT_TRUE(hasText(calls, "X")) << "the badges stand without a curve";
}

TEST_F(DrawCycle, EmptyArrayStillGetsItsLegend) {
    assignReference("c", L"um").arraySize = 0;
    EXPECT_TRUE(hasText(drawn(), "Reference (um)"));
}

struct Units {
    std::vector<std::wstring> units;
    std::string title;
};

const Units UnitCases[] = {
    {{L"um", L"um", L"um"}, "X axis (um)"}, {{L"um", L"mil", L"um"}, "X axis (?)"},
    {{L"um", L"um", L"mil"}, "X axis (?)"}, {{L"um", L"", L"um"}, "X axis ()"},
    {{L"um", L"mil", L""}, "X axis ()"},    {{L"", L"um", L"mil"}, "X axis ()"},
    {{L"?", L"?"}, "X axis (?)"},
};

TEST_F(DrawCycle, AxesShowTheUnitThatAllCurvesShare) {
    for (const auto& [units, title] : UnitCases) {
        host.description.assigned.channels.clear();
        for (std::size_t i = 0; i < units.size(); ++i)
            assignReference(std::to_string(i), units[i]);
        const Lines lines = drawn();
        EXPECT_TRUE(hasText(lines, title)) << title;
        std::string yTitle = title;
        yTitle.front() = 'Y';
        EXPECT_TRUE(hasText(lines, yTitle)) << yTitle;
    }
}

TEST_F(DrawCycle, LimitsFollowTheDataOfTheSameFrame) {
    assignReference("c", L"um");
    draw();
    EXPECT_EQ(key.graph.xMin(), -1.1 * 4.0);
    EXPECT_EQ(key.graph.yMax(), 1.1 * 4.0) << "square and centred";
    channel("c").values[5] = {-20.0};
    draw();
    EXPECT_EQ(key.graph.xMax(), 1.1 * 20.0);
}

TEST_F(DrawCycle, RelativeLimitsOfAGridKeepEachAxisItsOwnRange) {
    key.graph.setAutoScaleType(1);
    assignReference("c", L"um").arraySize = 2;
    channel("c").values[4] = {0.0, 10.0};
    channel("c").values[5] = {100.0, 200.0};
    draw();
    EXPECT_EQ(key.graph.xMin(), -0.5);
    EXPECT_EQ(key.graph.xMax(), 10.5);
    EXPECT_EQ(key.graph.yMin(), 95.0);
    EXPECT_EQ(key.graph.yMax(), 205.0);
    key.graph.setGraphType(1);
    draw();
    EXPECT_EQ(key.graph.xMin(), -1.1 * 200.0) << "a circle is square and centred";
}

TEST_F(DrawCycle, ManualLimitsStay) {
    key.graph.setManualLimits(1);
    assignReference("c", L"um");
    draw();
    EXPECT_EQ(key.graph.xMin(), -1.0);
    EXPECT_EQ(key.graph.xMax(), 1.0);
    EXPECT_EQ(key.dataExtents.range(), (Range{3.0, 3.0, 4.0, 4.0})) << "for a click on a strip";
}

TEST_F(DrawCycle, DataWithoutANumberOnOneAxisCountAsNone) {
    assignReference("c", L"um").values[4] = {std::nan("")};
    draw();
    EXPECT_EQ(key.dataExtents.range(), (Range{0.0, 0.0, 0.0, 0.0}));
}

TEST_F(DrawCycle, ExtentsStayUntilTheNextFrame) {
    assignReference("c", L"um");
    draw();
    host.description.assigned.channels.clear();
    EXPECT_EQ(key.dataExtents.range(), (Range{3.0, 3.0, 4.0, 4.0}));
    draw();
    EXPECT_EQ(key.dataExtents.range(), (Range{0.0, 0.0, 0.0, 0.0}));
}

TEST_F(DrawCycle, ReadoutStandsWhileThePointerIsInsideAndThereAreCurves) {
    const auto hasReadout = [&] {
        return std::ranges::any_of(drawn(), [](const std::string& line) {
            return line.find("\"X= ") != std::string::npos;
        });
    };
    control.onMouseEnter();
    EXPECT_FALSE(hasReadout()) << "no curve";
    assignOrbit();
    EXPECT_TRUE(hasReadout());
    control.onMouseLeave();
    EXPECT_FALSE(hasReadout());
}

TEST_F(DrawCycle, LegendIsARowOrLines) {
    assignReference("a", L"um");
    assignReference("b", L"um");
    EXPECT_TRUE(hasText(drawn(), "Reference (um), ")) << "all but the last with a comma";
    key.graph.setSingleAxis(false);
    EXPECT_FALSE(hasText(drawn(), "Reference (um), "));
}

TEST_F(DrawCycle, TurnsTheViewWithoutTurningTheDrawing) {
    assignOrbit();
    const Lines before = drawn();
    key.viewRotation = 0.5;
    EXPECT_EQ(drawn(), before);
    EXPECT_EQ(key.graph.state().rotationSin, std::sin(0.5));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
