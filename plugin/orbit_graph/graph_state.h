#pragma once

#include "plugin/orbit_graph/geometry.h"
#include "plugin/orbit_graph/orbit_curve.h"
#include "plugin/orbit_graph/range.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// Values of `graphType`. Any other number is kept as it came; it has the circle's background,
/// ticks and symmetric scale, but its limits are edited as a grid's.
namespace GraphType {
inline constexpr std::int32_t Grid = 0;
inline constexpr std::int32_t Circle = 1;
}  // namespace GraphType

/// Values of `autoScaleType`.
namespace AutoScaleType {
inline constexpr std::int32_t Absolute = 0;  ///< both axes alike and symmetric about 0
inline constexpr std::int32_t Relative = 1;  ///< each axis keeps its own range; in a grid only
}  // namespace AutoScaleType

/// An editable number at the end of an axis.
struct AxisLimitLabel {
    double value = 0;                ///< the limit that it shows
    Rectangle box = EmptyRectangle;  ///< where it stands, canvas pixels
    bool vertical = false;           ///< true for the y labels, from the first layout on
    bool hovered = false;            ///< the pointer is in `box`
    std::int32_t index = 0;          ///< 0 xMin, 1 xMax, 2 yMin, 3 yMax
};

/// The sample nearest to the pointer. `position`, `distance` and `found` start anew with each
/// frame; the rest keeps the last match, from whichever frame that was.
struct NearestSample {
    double x = 0;  ///< data value after clamping to the limits
    double y = 0;
    double extra = 0;  ///< third value of a ShaftCenter sample: RPM or seconds
    ChannelInfo info;
    OrbitKind kind = OrbitKind::Raw;
    Point position;  ///< canvas pixels; the pointer's own place while nothing is found
    double distance = 0;
    bool found = false;
    const void* search = nullptr;  ///< the one that told `info`; another frame's can come between
};

/// Everything that a frame needs besides the canvas and the curves. Lengths are canvas pixels,
/// angles of probes degrees, values data units.
struct GraphState {  // NOLINT(clang-analyzer-optin.performance.Padding): the order is documented
    // View
    double scaleX = 1.0;       ///< zoom about the centre of the canvas
    double scaleY = 1.0;       ///< zoom in y
    double panX = 0;           ///< shift, applied before the zoom
    double panY = 0;           ///< shift in y
    double rotationCos = 1.0;  ///< kept for the view's rotation; no drawing reads it
    double rotationSin = 0;    ///< as above

    // Layout
    Rectangle canvasRect = EmptyRectangle;     ///< area of the last `layout`
    Rectangle graphRect = EmptyRectangle;      ///< square of the plot, centred in `canvasRect`
    Rectangle clearanceRect = EmptyRectangle;  ///< box of the clearance; no drawing reads it
    double margin = 40.0;                      ///< kept free round the plot
    double legendX = 0;                        ///< running position of the legend
    double legendY = 0;                        ///< as above

    // Machine
    double xAngle = 0;            ///< mounting angle of the X probe
    double yAngle = 0;            ///< mounting angle of the Y probe
    double tachoAngle = 0;        ///< mounting angle of the tachometer
    double clearanceRadiusX = 0;  ///< half of the clearance's width, data units
    double clearanceRadiusY = 0;  ///< half of the clearance's height

    // Look
    bool drawClearance = false;       ///< setting
    bool singleAxis = true;           ///< setting; true: the legend is one row
    Color clearanceColor = 0xFF9900;  ///< setting
    Color hoverColor = 0x2D5DF1;      ///< text under the pointer; no setting changes it
    bool layoutValid = true;          ///< false makes the next `layout` run in full
    std::int32_t decimals = 3;        ///< digits behind the point of axis numbers
    Color backgroundColor = 0;        ///< first theme colour
    Color gridColor = 0;              ///< second theme colour
    Color textColor = 0;              ///< third theme colour
    Color axisColor = 0;              ///< fourth theme colour
    Color borderColor = 0;            ///< fifth theme colour
    bool darkBackground = true;       ///< `backgroundColor` is 0
    std::int32_t tickCount = 5;       ///< setting, kept as it came; see `drawnTickCount`

    // Modes
    bool viewAdjustEnabled = false;      ///< gate of zoom, rotation and pan; nothing opens it
    std::int32_t rotationDirection = 0;  ///< 0 or 1, shown by the arrow
    std::int32_t manualLimits = 0;       ///< setting; 1: the limits are the user's own
    std::int32_t displayType = 0;        ///< setting; 0 RPM, else time
    std::int32_t graphType = 0;          ///< setting; see `GraphType`
    std::int32_t historyType = 0;        ///< setting, kept for the control
    std::int32_t autoScaleType = 0;      ///< setting; see `AutoScaleType`

    // Axes
    std::array<AxisLimitLabel, 4> limitLabels;  ///< by index: xMin, xMax, yMin, yMax
    Rectangle xStrip = EmptyRectangle;          ///< band of the x scale, under the plot
    bool xStripHovered = false;                 ///< the pointer is in `xStrip`
    Rectangle yStrip = EmptyRectangle;          ///< band of the y scale, left of the plot
    bool yStripHovered = false;                 ///< the pointer is in `yStrip`
    double xMin = -1.0;                         ///< lower x limit, data units
    double xMax = 1.0;                          ///< upper x limit
    double yMin = -1.0;                         ///< lower y limit
    double yMax = 1.0;                          ///< upper y limit

    // Grid in unit square coordinates; rings as fractions of the plot's width
    std::vector<Segment> gridUnits;
    std::vector<Segment> edgeUnits;
    std::vector<Rectangle> ringUnits;
    std::vector<Segment> crossUnits;

    // Search
    std::vector<Rectangle> placedLabels;  ///< value labels placed in this frame
    Point pointer;                        ///< last position of the pointer, canvas pixels
    NearestSample nearest;                ///< best match of the pointer
    bool pointerInside = false;           ///< the pointer is over the control

    // Grid in canvas pixels
    std::vector<Segment> gridLines;
    std::vector<Segment> edgeLines;
    std::vector<Rectangle> ringBoxes;
    std::vector<Segment> crossLines;
};

}  // namespace Meridax::VisualControls::Rotavue
