#pragma once

namespace Rotavue::Workbench {

/// A stretch of an axis, `from` below `to`.
struct PlotRange {
    double from = 0.0;
    double to = 1.0;

    double length() const { return to - from; }
    bool contains(double value) const { return value >= from && value <= to; }
    bool operator==(const PlotRange&) const = default;
};

/// The range `factor` times as long (below 1 zooms in) in which `fixed` stays at its place.
PlotRange zoomed(const PlotRange& range, double fixed, double factor);

/// The range moved into `bounds`, and cut to them where it is longer; no shorter than `shortest`.
PlotRange within(PlotRange range, const PlotRange& bounds, double shortest);

/// The range moved by whole lengths of it until it holds the value: the next page.
PlotRange turnedTo(const PlotRange& range, double value);

/// A little room above and below, and a length above 0 also for one value alone.
PlotRange withRoom(const PlotRange& range);

}  // namespace Rotavue::Workbench
