#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Huge = std::numeric_limits<double>::max();

constexpr std::array OddNumbers{0.0,  -0.0,  1e-320,   -1e-320,   1e300,     -1e300,
                                Huge, -Huge, Infinity, -Infinity, NotANumber};

std::vector<OrbitCurve> oddCurves() {
    std::vector<OrbitCurve> curves;
    for (const OrbitKind kind : {OrbitKind::Raw, OrbitKind::Average, OrbitKind::Harmonic,
                                 OrbitKind::ShaftCenter, OrbitKind::Reference}) {
        OrbitCurve curve = curveOf(kind);
        for (const double x : OddNumbers) {
            for (const double y : OddNumbers) {
                for (const double z : OddNumbers) {
                    curve.points.push_back({x, y});
                    curve.samples.push_back({x, y, z});
                }
            }
        }
        curves.push_back(curve);
    }
    return curves;
}

/// The calls of a whole frame.
Lines frame(LaidOutGraph& plot, const std::vector<OrbitCurve>& curves) {
    const CanvasRef canvas = plot.canvas.ref();
    plot.graph.layoutLimitLabels(canvas);
    plot.graph.drawFrame(canvas);
    plot.graph.layoutAxisStrips(canvas);
    plot.graph.drawScaleLabels(canvas);
    plot.graph.drawAxisTitles(canvas, L"um");
    plot.graph.drawTraces(canvas, curves);
    plot.graph.drawReadout(canvas);
    plot.graph.drawClearanceEllipse(canvas);
    plot.graph.drawSensorBadges(canvas);
    plot.graph.drawLegendLines(canvas, curves);
    plot.graph.drawLegendRow(canvas, curves);
    return plot.canvas.taken();
}

/// Every part of a frame is there to its end: the arrow with its two pen widths, three badges in
/// the colour of the background, and the legend, in which each curve has a line and a place in the
/// row.
void expectWhole(const Lines& lines, std::size_t curves) {
    EXPECT_EQ(callsOf("IHostPen.SetWidth", lines).size(), 2U);
    EXPECT_EQ(callsOf("IHostFont.SetColor(1)", lines).size(), 3U);
    const Lines texts = callsOf("IHostCanvas.TextOut", lines);
    const auto isLegend = [](const std::string& line) {
        return line.find("A (um)") != std::string::npos;
    };
    EXPECT_EQ(std::ranges::count_if(texts, isLegend), static_cast<std::ptrdiff_t>(2 * curves));
    EXPECT_EQ(lines.back(), "IHostFont.SetOrientation(0)");
}

TEST(HostileNumbers, InThousandsOfSamplesLeaveAFrameWhole) {
    const std::vector<OrbitCurve> curves = oddCurves();
    ASSERT_GT(curves[0].points.size(), 1000U);
    LaidOutGraph plot;
    plot.graph.setPointer({150, 150});
    expectWhole(frame(plot, curves), curves.size());
    // Zeros and the smallest numbers lie inside, at the centre.
    EXPECT_TRUE(plot.graph.nearest().found);
    EXPECT_EQ(plot.graph.nearest().position, (Point{150, 150}));
}

TEST(HostileNumbers, InTheLimitsLeaveAFrameWhole) {
    const std::vector<OrbitCurve> curves{rawCurve({{0, 0}, {1, 1}, {NotANumber, Infinity}}),
                                         sampledCurve(OrbitKind::ShaftCenter, {{0, 0, 1}})};
    for (const double lower : OddNumbers) {
        for (const double upper : OddNumbers) {
            LaidOutGraph plot;
            plot.graph.setDrawClearance(true);
            plot.graph.setClearanceRadiusX(upper);
            plot.graph.setClearanceRadiusY(lower);
            plot.setLimits({lower, upper, upper, lower});
            plot.layOut();
            SCOPED_TRACE(std::to_string(lower) + " " + std::to_string(upper));
            expectWhole(frame(plot, curves), curves.size());
        }
    }
}

TEST(HostileNumbers, InTheSettingsBoundTheWorkOfAFrame) {
    // A tick is at most 8 calls on each of two axes and 2 * MostTicks + 3 positions, a grid line 2;
    // the rest of a frame without a curve is below 200.
    constexpr std::size_t Most = 2 * 8 * 2003 + 2 * 2 * 1002 + 200;
    for (const std::int32_t number : {Smallest, Smallest + 1, -2, -1, Largest - 1, Largest}) {
        for (const std::int32_t type : {GraphType::Grid, GraphType::Circle, number}) {
            LaidOutGraph plot;
            plot.graph.setTickCount(number);
            plot.graph.setGraphType(type);
            plot.graph.setRotationDirection(number);
            plot.graph.setDisplayType(number);
            plot.layOut();
            EXPECT_LE(frame(plot, {}).size(), Most) << number << " " << type;
            EXPECT_EQ(plot.graph.tickCount(), number);
        }
    }
}

TEST(HostileNumbers, InTheDecimalsAreBoundedInTheTextsAlone) {
    for (const std::int32_t number : {Smallest, -1, 5000, Largest}) {
        LaidOutGraph plot;
        plot.graph.setDecimals(number);
        plot.graph.drawReadout(plot.canvas.ref());
        plot.graph.layoutLimitLabels(plot.canvas.ref());
        // The text of -1: a sign, a digit, and up to a point with 1074 digits.
        const double width = widthOf(plot.graph.limitLabels()[0].box);
        EXPECT_EQ(width, 8 * (number < 0 ? 2 : 3 + 1074));
        EXPECT_EQ(plot.graph.decimals(), number);
    }
}

TEST(HostileNumbers, InTheFontLeaveAFrameWhole) {
    for (const std::int32_t height : {Smallest, -1, 0, Largest}) {
        LaidOutGraph plot;
        plot.canvas.host.description.canvas = {height, height, height};
        plot.graph.setSingleAxis(false);
        plot.layOut();
        SCOPED_TRACE(height);
        expectWhole(frame(plot, oddCurves()), oddCurves().size());
    }
}

TEST(HostileNumbers, InTheAreaLeaveAFrameWhole) {
    for (const double edge : {0.0, -100.0, 2147483647.0, -2147483648.0}) {
        LaidOutGraph plot(edge, 300);
        SCOPED_TRACE(edge);
        expectWhole(frame(plot, {rawCurve({{0, 0}, {1, 1}})}), 1);
    }
}

TEST(HostileNumbers, InTicksAndDecimalsTogetherAreWrittenOneAtATime) {
    LaidOutGraph plot;
    plot.graph.setTickCount(Largest);
    plot.graph.setGraphType(GraphType::Circle);
    plot.graph.setDecimals(Largest);
    plot.layOut();
    plot.graph.drawScaleLabels(plot.canvas.ref());
    // 2 * 1000 + 3 positions on each axis, two of them at the limits; these have no box yet.
    EXPECT_EQ(plot.canvas.taken("IHostFont.SetHeight(21)").size(), 2U * 2001U);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
