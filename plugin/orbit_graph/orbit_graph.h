#pragma once

#include "plugin/orbit_graph/clipped_canvas.h"
#include "plugin/orbit_graph/graph_state.h"
#include "plugin/orbit_graph/orbit_curve.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// The drawing engine: it lays the plot out, holds the limits of its axes and paints frame, curves,
/// readout and legend. It knows no channel and no host object but the canvas that each drawing
/// operation is handed. Where an operation needs the canvas, its pen, brush or font and gets a
/// null, it raises `HostError` 0x80004003; a call that fails raises its own, and memory that is
/// short for a text on its way to the host 0x8007000E. A frame that ends so stays half drawn.
///
/// A frame: `setRotation`, `layout`, `setThemeColors`, the limits (`autoScale`, unless the user set
/// them), `layoutLimitLabels`, `drawFrame`, `layoutAxisStrips`, `drawScaleLabels`,
/// `drawAxisTitles`, `drawTraces`, `drawReadout`, `drawClearanceEllipse`, `drawSensorBadges` and
/// one of the two legends. The order is the caller's.
class OrbitGraph {
public:
    OrbitGraph();

    // ---- Frame -------------------------------------------------------------------------------

    /// Computes the rectangles and the lists of the grid for an area of the canvas. Does nothing
    /// for an area of the same size while the layout is valid, even if it stands elsewhere.
    /// `channelCount` is how many legend lines get room when `singleAxis` is false.
    void layout(const CanvasRef& canvas, const Rectangle& area, std::int32_t channelCount);

    /// Gives the four limit labels their values and boxes; their hover flags stay.
    void layoutLimitLabels(const CanvasRef& canvas);

    /// Finds the bands of the two scales, where the pointer picks an axis.
    void layoutAxisStrips(const CanvasRef& canvas);

    /// Background with grid or rings, the axis edges and the arrow of rotation.
    void drawFrame(const CanvasRef& canvas) const;

    /// The ticks' numbers and the limit labels.
    void drawScaleLabels(const CanvasRef& canvas) const;

    void drawAxisTitles(const CanvasRef& canvas, const std::wstring& unit) const;

    /// A message in the upper left corner of the canvas.
    void drawError(const CanvasRef& canvas, const std::wstring& message) const;

    void drawClearanceEllipse(const CanvasRef& canvas) const;

    /// The X, Y and T marks at the probes' mounting angles.
    void drawSensorBadges(const CanvasRef& canvas) const;

    /// All curves, in their order, and in the same pass the search for the sample nearest to the
    /// pointer. Draws nothing while an axis has no width.
    void drawTraces(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves);

    /// Crosshair and text of the nearest sample; nothing when it lies outside the canvas.
    void drawReadout(const CanvasRef& canvas) const;

    /// One line per curve, upright, beside each other: the legend when `singleAxis` is false.
    void drawLegendLines(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves);

    /// All curves in one upright row: the legend when `singleAxis` is true.
    void drawLegendRow(const CanvasRef& canvas, const std::vector<OrbitCurve>& curves);

    // ---- Limits and numbers ------------------------------------------------------------------

    /// Fits the limits to the extents of the frame's data, unless `manualLimits` is set. Extents
    /// that are still empty in any place count as four zeros.
    void autoScale(const Range& extents);

    /// A change to the circle makes the limits symmetric; a change back keeps them.
    void setGraphType(std::int32_t type);

    /// Fits the axis whose strip is hovered to the range; in a circle, both axes.
    void setLimits(const Range& range);

    /// Edits one limit (0 xMin, 1 xMax, 2 yMin, 3 yMax). In a circle and with absolute scaling all
    /// four take on the value's magnitude; otherwise a value that would not leave its axis in
    /// strict order is refused without a word.
    void setLimit(double value, std::int32_t index);

    /// Edits one limit by itself, whatever the scaling, with the same refusal.
    void setLimitPlain(double value, std::int32_t index);

    /// The format of axis numbers, such as "%.3f".
    std::wstring valueFormat() const;

    // ---- Pointer -----------------------------------------------------------------------------

    void setPointer(const Point& pointer);
    void pointerLeft();

    /// Sets each strip's flag by itself; edges belong to a strip.
    void hitTestAxisStrips(const Point& point);

    /// Sets the flag of the first label that holds the point and clears the others.
    void hitTestLimitLabels(const Point& point);

    bool anyAxisStripHovered() const;
    bool anyLimitLabelHovered() const;

    /// Whether a pair of data values lies within the limits, bounds included.
    bool isInLimits(const Point& value) const;

    // ---- View; each of these makes the next `layout` run in full -----------------------------

    void setZoom(double factor);
    void panBy(double dx, double dy);

    /// Keeps an angle in radians, of which nothing is drawn.
    void setRotation(double angle);

    /// Sets the arrow's direction and takes the pan back.
    void setRotationDirection(std::int32_t direction);

    /// Keeps any number; how many ticks are drawn is bounded (`drawnTickCount`).
    void setTickCount(std::int32_t count);

    /// Makes the next `layout` run in full.
    void invalidateLayout() { state_.layoutValid = false; }

    // ---- State -------------------------------------------------------------------------------

    void setThemeColors(Color background, Color grid, Color text, Color axis, Color border);

    double xAngle() const { return state_.xAngle; }
    void setXAngle(double degrees) { state_.xAngle = degrees; }
    double yAngle() const { return state_.yAngle; }
    void setYAngle(double degrees) { state_.yAngle = degrees; }
    double tachoAngle() const { return state_.tachoAngle; }
    void setTachoAngle(double degrees) { state_.tachoAngle = degrees; }

    double clearanceRadiusX() const { return state_.clearanceRadiusX; }
    void setClearanceRadiusX(double radius) { state_.clearanceRadiusX = radius; }
    double clearanceRadiusY() const { return state_.clearanceRadiusY; }
    void setClearanceRadiusY(double radius) { state_.clearanceRadiusY = radius; }
    bool drawClearance() const { return state_.drawClearance; }
    void setDrawClearance(bool draw) { state_.drawClearance = draw; }
    Color clearanceColor() const { return state_.clearanceColor; }
    void setClearanceColor(Color color) { state_.clearanceColor = color; }

    bool singleAxis() const { return state_.singleAxis; }
    void setSingleAxis(bool single) { state_.singleAxis = single; }
    bool pointerInside() const { return state_.pointerInside; }
    void setPointerInside(bool inside) { state_.pointerInside = inside; }
    std::int32_t decimals() const { return state_.decimals; }
    void setDecimals(std::int32_t decimals) { state_.decimals = decimals; }
    std::int32_t tickCount() const { return state_.tickCount; }
    std::int32_t graphType() const { return state_.graphType; }
    std::int32_t manualLimits() const { return state_.manualLimits; }
    void setManualLimits(std::int32_t manual) { state_.manualLimits = manual; }
    std::int32_t displayType() const { return state_.displayType; }
    void setDisplayType(std::int32_t type) { state_.displayType = type; }
    std::int32_t historyType() const { return state_.historyType; }
    void setHistoryType(std::int32_t type);
    std::int32_t autoScaleType() const { return state_.autoScaleType; }
    void setAutoScaleType(std::int32_t type) { state_.autoScaleType = type; }
    std::int32_t rotationDirection() const { return state_.rotationDirection; }
    bool viewAdjustEnabled() const { return state_.viewAdjustEnabled; }

    double xMin() const { return state_.xMin; }
    void setXMin(double limit) { state_.xMin = limit; }
    double xMax() const { return state_.xMax; }
    void setXMax(double limit) { state_.xMax = limit; }
    double yMin() const { return state_.yMin; }
    void setYMin(double limit) { state_.yMin = limit; }
    double yMax() const { return state_.yMax; }
    void setYMax(double limit) { state_.yMax = limit; }

    /// In the order of their index.
    const std::array<AxisLimitLabel, 4>& limitLabels() const { return state_.limitLabels; }
    bool xStripHovered() const { return state_.xStripHovered; }
    bool yStripHovered() const { return state_.yStripHovered; }
    const NearestSample& nearest() const { return state_.nearest; }

    /// All of it, to look at.
    const GraphState& state() const { return state_; }

private:
    friend struct OrbitGraphAccess;  // a test's key to the gate that nothing else opens

    GraphState state_;
};

}  // namespace Meridax::VisualControls::Rotavue
