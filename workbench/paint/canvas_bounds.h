#pragma once

#include <QPoint>
#include <QSize>

#include <algorithm>
#include <cstdint>

namespace Rotavue::Workbench {

/// Largest text and widest pen, in pixels.
inline constexpr std::int32_t TallestText = 512;
inline constexpr std::int32_t WidestPen = 256;

/// How far from the origin a shape may reach: four times the longer side of its canvas. What a
/// caller sends beyond that is held at this bound, so that a shape of which nobody can see the far
/// end costs no more than one that fits, and cannot overflow anything.
class Reach {
public:
    /// `scale` is the pixels of the device for one of the canvas; those have 16 bits.
    Reach(QSize canvas, double scale)
        : farthest_(static_cast<int>(std::min(4.0 * std::max(canvas.width(), canvas.height()),
                                              FarthestOnDevice / std::max(scale, 1.0)))) {}

    QPoint held(std::int32_t x, std::int32_t y) const { return {held(x), held(y)}; }

private:
    static constexpr double FarthestOnDevice = 32000.0;

    int held(std::int32_t coordinate) const {
        return std::clamp(coordinate, -farthest_, farthest_);
    }

    int farthest_;
};

}  // namespace Rotavue::Workbench
