#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/orbit_graph/graph_views.h"
#include "plugin/orbit_graph/orbit_graph.h"
#include "plugin/orbit_graph/primitives.h"

#include <cmath>
#include <string>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Badge {
    const wchar_t* letter;
    double angle;  ///< degrees clockwise from the top
};

/// Straight above the centre of the plot: on the circle, or in a grid as far as the corners.
Point badgeOrigin(const GraphState& state) {
    const double widening = state.graphType == GraphType::Grid ? std::sqrt(2.0) : 1.0;
    const double radius = widthOf(state.graphRect) * widening * 0.5;
    const Point centre = centreOf(state.graphRect);
    return onCanvas(state, {centre.x, centre.y + radius});
}

/// Held within the plot, so that a badge runs along the frame of a grid.
Point badgePlace(const GraphState& state, double angle) {
    const Rectangle& plot = state.graphRect;
    const Point turned = turn(badgeOrigin(state), -angle * Pi / 180.0, centreOf(plot));
    return {limitedTo(turned.x, plot.left, plot.right), limitedTo(turned.y, plot.top, plot.bottom)};
}

void drawBadge(const CanvasRef& canvas, const GraphState& state, const Badge& badge) {
    const Rectangle box = squareRound(badgePlace(state, badge.angle), fontLength(canvas) * 0.7);
    fillRectangle(canvas, box, state.textColor, state.backgroundColor);
    canvas->GetFont()->SetColor(state.backgroundColor);
    drawTextBox(canvas, box, badge.letter, TextFormat::CentredBothWays);
}

}  // namespace

void OrbitGraph::drawSensorBadges(const CanvasRef& canvas) const {
    drawBadge(canvas, state_, {L"X", state_.xAngle});
    drawBadge(canvas, state_, {L"Y", state_.yAngle});
    drawBadge(canvas, state_, {L"T", state_.tachoAngle});
}

}  // namespace Meridax::VisualControls::Rotavue
