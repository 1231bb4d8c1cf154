#pragma once

#include "workbench/recording/samples.h"
#include "workbench/window/docks/plot_range.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace Rotavue::Workbench {

/// Samples at equal steps, and the smallest and largest value of each block of them, so that a
/// column of pixels asks few numbers however many samples it stands for. A NaN is a gap. Making one
/// reads every sample once; after that nothing changes, so another thread may make it.
class SampleTrace {
public:
    static constexpr std::size_t BlockLength = 512;

    SampleTrace() = default;

    /// `owner` keeps the samples alive; without one they must outlive this object.
    SampleTrace(SampleView samples, double sampleRate, std::shared_ptr<const void> owner = {});

    std::size_t count() const { return samples_.size(); }
    double at(std::size_t index) const { return samples_[index]; }
    double timeOf(std::size_t index) const { return static_cast<double>(index) / sampleRate_; }

    /// From the first sample to the last.
    double duration() const { return samples_.empty() ? 0.0 : timeOf(samples_.size() - 1); }

    /// The first sample at or behind a time; `count` behind the last one.
    std::size_t firstFrom(double time) const;

    /// The value at a time on the straight line between two samples; nothing in a gap and outside.
    std::optional<double> valueAt(double time) const;

    /// The last sample at or before a time that is no gap; nothing where there is none.
    std::optional<std::size_t> lastKnown(double time) const;

    /// Smallest and largest of the samples from `first` to before `end`; nothing where there are
    /// gaps alone.
    std::optional<PlotRange> rangeOf(std::size_t first, std::size_t end) const;

    /// Of all samples.
    std::optional<PlotRange> range() const { return rangeOf(0, count()); }

private:
    std::shared_ptr<const void> owner_;
    SampleView samples_;
    double sampleRate_ = 1.0;
    std::vector<PlotRange> blocks_;  ///< whole ones; from above to where there are gaps alone
};

}  // namespace Rotavue::Workbench
