#pragma once

#include "plugin/orbit_graph/geometry.h"
#include "plugin/orbit_graph/range.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// Fifty times what the property panel offers, and closer than the pixels of any plot. A setup can
/// hold any 32-bit number; without this bound it could make a frame endless.
inline constexpr std::int32_t MostTicks = 1000;

/// How many ticks are drawn for a `tickCount`.
constexpr std::int32_t drawnTickCount(std::int32_t tickCount) {
    return tickCount < MostTicks ? tickCount : MostTicks;
}

/// The number of tick positions on an axis, both ends included; below 1 there are none. In a grid
/// `tickCount` says how many marks lie between the ends, in a circle how many lie between the
/// centre and each end.
std::int64_t tickPositions(std::int32_t graphType, std::int32_t tickCount);

/// Fills a list with the grid in unit coordinates: from the upper and right edge downward, a
/// vertical and a horizontal line at each step. The lower and left edge are left to `edgeUnits`; a
/// rounding error of the repeated subtraction may still leave a line there.
void fillGridUnits(std::vector<Segment>& units, std::int32_t tickCount);

/// The left edge and the edge at v = +1, which is the lower one on the screen.
std::vector<Segment> edgeUnits();

/// Fills a list with the rings inside the outer circle, from the largest, as boxes from 0, 0 in
/// fractions of the plot's width. A rounding error of the repeated subtraction may leave one of
/// almost no size.
void fillRingUnits(std::vector<Rectangle>& units, std::int32_t tickCount);

std::vector<Segment> crossUnits();

/// A mark on an axis, decided before anything is drawn.
struct Tick {
    double value = 0;      ///< data units
    double unit = 0;       ///< unit coordinate, 1 at the upper end
    bool atLimit = false;  ///< a limit label stands there instead
    std::wstring text;
};

/// The ticks of one axis from its upper to its lower end. Nearness to a limit is judged by an
/// absolute distance, so that in a range of very small numbers all ticks count as being there.
/// They come one at a time: the texts of an absurd setup would together take many megabytes.
class AxisTicks {
public:
    AxisTicks(double lower, double upper, std::int64_t positions, std::wstring format);

    /// The next tick. `positions` of them are the whole axis.
    Tick next();

private:
    double lower_;
    double upper_;
    double valueStep_;
    double unitStep_;
    std::wstring format_;
    double value_;
    double unit_ = 1.0;
};

/// The limits that show all of the extents; extents that are empty in any place count as zeros.
Range fittedLimits(const Range& extents, std::int32_t graphType, std::int32_t autoScaleType);

}  // namespace Meridax::VisualControls::Rotavue
