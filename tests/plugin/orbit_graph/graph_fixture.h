#pragma once

#include "plugin/orbit_graph/orbit_graph.h"

#include "tests/plugin/orbit_graph/recording_canvas.h"

#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// Colours that tell each other apart in a log.
namespace Theme {
inline constexpr Color Background = 1;
inline constexpr Color Grid = 2;
inline constexpr Color Text = 3;
inline constexpr Color Axis = 4;
inline constexpr Color Border = 5;
inline constexpr Color Hover = 0x2D5DF1;
}  // namespace Theme

/// A graph with its canvas, laid out on 300 by 300 pixels: the plot goes from 60 to 240, its centre
/// is 150 and its half width 90. The limits are -1 and 1, so 0.5 in x is pixel 195 and in y 105.
struct LaidOutGraph {
    explicit LaidOutGraph(double width = 300, double height = 300) {
        graph.setThemeColors(Theme::Background, Theme::Grid, Theme::Text, Theme::Axis,
                             Theme::Border);
        graph.setDecimals(0);
        layOut(width, height);
    }

    void layOut(double width = 300, double height = 300) {
        graph.invalidateLayout();
        graph.layout(canvas.ref(), {0, 0, width, height}, 0);
    }

    void setLimits(const Range& limits) {
        graph.setXMin(limits.xMin);
        graph.setXMax(limits.xMax);
        graph.setYMin(limits.yMin);
        graph.setYMax(limits.yMax);
    }

    /// What `drawTraces` writes for these curves.
    Lines traces(const std::vector<OrbitCurve>& curves) {
        graph.drawTraces(canvas.ref(), curves);
        return canvas.taken();
    }

    RecordingCanvas canvas;
    OrbitGraph graph;
};

inline OrbitCurve curveOf(OrbitKind kind, Color color = 7, const std::wstring& name = L"A",
                          const std::wstring& unit = L"um") {
    OrbitCurve curve;
    curve.kind = kind;
    curve.info.color = color;
    curve.info.name = name;
    curve.info.unit = unit;
    return curve;
}

inline OrbitCurve rawCurve(std::vector<Point> points) {
    OrbitCurve curve = curveOf(OrbitKind::Raw);
    curve.points = std::move(points);
    return curve;
}

inline OrbitCurve sampledCurve(OrbitKind kind, std::vector<CurveSample> samples) {
    OrbitCurve curve = curveOf(kind);
    curve.samples = std::move(samples);
    return curve;
}

}  // namespace Meridax::VisualControls::Rotavue
