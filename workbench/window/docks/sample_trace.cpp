#include "workbench/window/docks/sample_trace.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr PlotRange Nothing{Infinity, -Infinity};

/// A NaN compares false and leaves both ends as they are.
void take(PlotRange& range, SampleView values) {
    values.forEach([&range](double value) {
        if (value < range.from) range.from = value;
        if (value > range.to) range.to = value;
    });
}

}  // namespace

SampleTrace::SampleTrace(SampleView samples, double sampleRate, std::shared_ptr<const void> owner)
    : owner_(std::move(owner)),
      samples_(samples),
      sampleRate_(sampleRate),
      blocks_(samples.size() / BlockLength, Nothing) {
    for (std::size_t i = 0; i < blocks_.size(); ++i)
        take(blocks_[i], samples_.part(i * BlockLength, BlockLength));
}

std::size_t SampleTrace::firstFrom(double time) const {
    // A sample's own time, computed by a division, may come out a hair later than it stands.
    const double place = std::ceil(time * sampleRate_ - 1e-6);
    if (!(place > 0.0)) return 0;
    return static_cast<std::size_t>(std::min(place, static_cast<double>(count())));
}

std::optional<double> SampleTrace::valueAt(double time) const {
    const double place = time * sampleRate_;
    if (!(place >= 0.0) || place > static_cast<double>(count()) - 1.0) return {};
    const auto first = static_cast<std::size_t>(place);
    const double part = place - static_cast<double>(first);
    const double here = samples_[first];
    const double value = part > 0.0 ? here + (samples_[first + 1] - here) * part : here;
    return std::isnan(value) ? std::nullopt : std::optional(value);
}

std::optional<std::size_t> SampleTrace::lastKnown(double time) const {
    for (std::size_t end = std::min(firstFrom(time) + 1, count()); end > 0; --end)
        if (timeOf(end - 1) <= time && !std::isnan(samples_[end - 1])) return end - 1;
    return {};
}

std::optional<PlotRange> SampleTrace::rangeOf(std::size_t first, std::size_t end) const {
    end = std::min(end, count());
    if (first >= end) return {};
    const std::size_t firstWhole = (first + BlockLength - 1) / BlockLength;
    const std::size_t endWhole = end / BlockLength;
    PlotRange range = Nothing;
    if (firstWhole >= endWhole) {
        take(range, samples_.part(first, end - first));
    } else {
        take(range, samples_.part(first, firstWhole * BlockLength - first));
        for (std::size_t i = firstWhole; i < endWhole; ++i) {
            range.from = std::min(range.from, blocks_[i].from);
            range.to = std::max(range.to, blocks_[i].to);
        }
        take(range, samples_.part(endWhole * BlockLength, end - endWhole * BlockLength));
    }
    if (range.from > range.to) return {};
    return range;
}

}  // namespace Rotavue::Workbench
