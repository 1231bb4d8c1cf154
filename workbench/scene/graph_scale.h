#pragma once

#include <cstdint>

namespace Rotavue::Workbench {

enum class Background : std::uint8_t { Grid, Circle };

/// A scale with one limit each way, both axes alike.
struct GraphScale {
    double limit = 0.0;         ///< the axes run from -limit to limit
    double division = 0.0;      ///< from one line of the grid, or one ring, to the next
    std::int32_t ticks = 5;     ///< the control's setting
    std::int32_t decimals = 0;  ///< digits behind the point that the axis numbers need
};

/// How much room the axis numbers have.
struct ScaleRoom {
    Background background = Background::Grid;
    int plotSide = 0;    ///< pixels
    int textHeight = 0;  ///< of the control, pixels
};

/// The number of divisions from the middle of the plot to its edge; not whole for an even number of
/// ticks in a grid.
double divisionsEachWay(Background background, std::int32_t ticks);

/// The scale that holds `extent`, above 0, with a little room, and whose divisions are round
/// numbers.
GraphScale roundScale(double extent, Background background, std::int32_t ticks);

/// The scale of this limit as it comes out, with as many digits as tell the numbers apart.
GraphScale plainScale(double limit, Background background, std::int32_t ticks);

/// Whether the axis numbers have room beside each other.
bool fits(const GraphScale& scale, const ScaleRoom& room);

}  // namespace Rotavue::Workbench
