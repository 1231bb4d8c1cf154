#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/label_placement.h"
#include "plugin/orbit_graph/number_format.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/scales.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// What the legend lines need beyond the gap beside the plot, to be taken from both sides of it.
double legendShortage(const CanvasRef& canvas, double width, double side, double channelCount) {
    const double gap = canvasInteger(std::round((width - side) * 0.5));
    const double need = canvasInteger(std::ceil((channelCount + 1) * lineHeight(canvas)));
    return need > gap ? (need - gap) * 2 : 0;
}

double plotSide(const CanvasRef& canvas, const GraphState& state, std::int32_t channelCount) {
    const double width = widthOf(state.canvasRect);
    const double side = std::min(width, heightOf(state.canvasRect)) - 2 * state.margin;
    if (state.singleAxis) return side;
    return side - legendShortage(canvas, width, side, channelCount);
}

/// The square takes a margin off once more: the plot is meant to be that much smaller.
Rectangle plotSquare(const GraphState& state, double side) {
    const Rectangle square{state.margin, state.margin, side, side};
    return centredOn(square, centreOf(state.canvasRect));
}

/// The share of an axis that a clearance radius takes, within 0 and 1.
double clearanceShare(double radius, double lower, double upper) {
    const double reach = std::min(std::fabs(lower), std::fabs(upper));
    return reach > 0 ? limitedTo(radius, 0, reach) / reach : 0;
}

Rectangle clearanceBox(const GraphState& state) {
    if (state.clearanceRadiusX <= 0 || state.clearanceRadiusY <= 0) return {};
    const double shareX = clearanceShare(state.clearanceRadiusX, state.xMin, state.xMax);
    const double shareY = clearanceShare(state.clearanceRadiusY, state.yMin, state.yMax);
    const Rectangle box{0, 0, widthOf(state.graphRect) * shareX,
                        heightOf(state.graphRect) * shareY};
    return centredOn(box, centreOf(state.canvasRect));
}

// The lists keep their storage from frame to frame, and nothing else.

void mapLines(const GraphState& state, const std::vector<Segment>& units,
              std::vector<Segment>& lines) {
    const PlotMapping mapping = mappingOf(state);
    const ViewTransform view = viewOf(state);
    lines.clear();
    for (const Segment& unit : units) {
        lines.push_back(view.apply(Segment{mapping.plotPoint(unit.start.x, unit.start.y),
                                           mapping.plotPoint(unit.end.x, unit.end.y)}));
    }
}

/// The width of the plot scales both directions.
void mapRings(GraphState& state) {
    const double width = widthOf(state.graphRect);
    const Point centre = centreOf(state.graphRect);
    const ViewTransform view = viewOf(state);
    state.ringBoxes.clear();
    for (const Rectangle& unit : state.ringUnits) {
        const Rectangle scaled{unit.left * width, unit.top * width, unit.right * width,
                               unit.bottom * width};
        state.ringBoxes.push_back(view.apply(centredOn(scaled, centre)));
    }
}

/// Where a limit label stands: the corner of the plot in unit steps from its centre.
struct LabelCorner {
    double u;
    double v;
    bool vertical;
};

constexpr std::array<LabelCorner, 4> LabelCorners{{
    {-1, -1, false},  // xMin
    {1, -1, false},   // xMax
    {-1, -1, true},   // yMin
    {-1, 1, true},    // yMax
}};

Rectangle limitLabelBox(const GraphState& state, const LabelCorner& corner, double value,
                        const TextSize& size) {
    const Point plotPoint = mappingOf(state).plotPoint(corner.u, corner.v);
    if (corner.vertical) {
        const Point p = placedAlongY(state, value, plotPoint, size);
        return {p.x, p.y - size.width, p.x + size.height, p.y};
    }
    const Point p = placedAlongX(state, value, plotPoint, size.width);
    return {p.x, p.y, p.x + size.width, p.y + size.height};
}

}  // namespace

void OrbitGraph::layout(const CanvasRef& canvas, const Rectangle& area, std::int32_t channelCount) {
    const bool sameSize = widthOf(area) == widthOf(state_.canvasRect) &&
                          heightOf(area) == heightOf(state_.canvasRect);
    if (sameSize && state_.layoutValid) return;
    state_.canvasRect = area;
    state_.graphRect = plotSquare(state_, plotSide(canvas, state_, channelCount));
    state_.clearanceRect = clearanceBox(state_);
    fillGridUnits(state_.gridUnits, state_.tickCount);
    fillRingUnits(state_.ringUnits, state_.tickCount);
    mapLines(state_, state_.gridUnits, state_.gridLines);
    mapLines(state_, state_.edgeUnits, state_.edgeLines);
    mapLines(state_, state_.crossUnits, state_.crossLines);
    mapRings(state_);
    state_.layoutValid = true;
}

void OrbitGraph::layoutLimitLabels(const CanvasRef& canvas) {
    const std::array<double, 4> limits{state_.xMin, state_.xMax, state_.yMin, state_.yMax};
    const std::wstring format = valueFormat();
    for (std::size_t i = 0; i < limits.size(); ++i) {
        const TextSize size = measure(canvas, formatValue(format, limits[i]));
        AxisLimitLabel& label = state_.limitLabels[i];
        label.value = limits[i];
        label.box = limitLabelBox(state_, LabelCorners[i], limits[i], size);
        label.vertical = LabelCorners[i].vertical;
        label.index = static_cast<std::int32_t>(i);
    }
}

void OrbitGraph::layoutAxisStrips(const CanvasRef& canvas) {
    const double line = lineHeight(canvas);
    const PlotMapping mapping = mappingOf(state_);
    const Rectangle plot = squareRound(mapping.centre(), mapping.halfWidth());
    state_.xStrip = {plot.left, plot.bottom, plot.right, plot.bottom + line};
    state_.yStrip = {plot.left - line, plot.top, plot.left, plot.bottom};
}

}  // namespace Meridax::VisualControls::Rotavue
