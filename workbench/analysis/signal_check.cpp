#include "workbench/analysis/signal_check.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "workbench/analysis/order_ellipse.h"
#include "workbench/analysis/short_text.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LeastShareAtLimit = 0.01;
constexpr std::size_t LeastRun = 4;
constexpr std::size_t LeastTimesNext = 8;

// What a probe has values for; gaps are left out, here and below.
struct ValueRange {
    std::size_t count = 0;
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();
    std::size_t atLeast = 0;  ///< how many are the least one
    std::size_t atMost = 0;
};

ValueRange rangeOf(SampleView values) {
    ValueRange range;
    values.forEach([&range](double value) {
        if (!std::isfinite(value)) return;
        ++range.count;
        if (value < range.least) {
            range.least = value;
            range.atLeast = 0;
        }
        if (value > range.most) {
            range.most = value;
            range.atMost = 0;
        }
        range.atLeast += value == range.least ? 1U : 0U;
        range.atMost += value == range.most ? 1U : 0U;
    });
    return range;
}

std::size_t timesOf(SampleView values, double sought) {
    std::size_t count = 0;
    values.forEach([&](double value) { count += value == sought ? 1U : 0U; });
    return count;
}

// The value nearest to a limit on its inner side; `sign` is that of the way to the limit.
double nextTo(SampleView values, double limit, double sign) {
    double next = -std::numeric_limits<double>::infinity();
    values.forEach([&](double value) {
        if (sign * value < sign * limit) next = std::max(next, sign * value);
    });
    return sign * next;
}

std::size_t longestRunOf(SampleView values, double sought) {
    std::size_t longest = 0;
    std::size_t run = 0;
    values.forEach([&](double value) {
        if (!std::isfinite(value)) return;
        run = value == sought ? run + 1 : 0;
        longest = std::max(longest, run);
    });
    return longest;
}

// The share of the values at a limit if they are clipped there; else 0. Hardly any are at the limit
// of a signal that is not: that much is known from one look at the values.
double clippedShare(SampleView values, const ValueRange& range, double sign) {
    const double limit = sign > 0.0 ? range.most : range.least;
    const std::size_t atLimit = sign > 0.0 ? range.atMost : range.atLeast;
    const double share = static_cast<double>(atLimit) / static_cast<double>(range.count);
    if (share < LeastShareAtLimit) return 0.0;
    const std::size_t atNext = timesOf(values, nextTo(values, limit, sign));
    const bool clipped =
        atLimit >= LeastTimesNext * atNext && longestRunOf(values, limit) >= LeastRun;
    return clipped ? share : 0.0;
}

class ProbeCheck {
public:
    ProbeCheck(std::string name, SampleView probe, std::string unit)
        : name_(std::move(name)), probe_(probe), unit_(std::move(unit)) {}

    void addNotes(std::vector<std::string>& notes) const {
        const ValueRange range = rangeOf(probe_);
        if (range.count < probe_.size()) notes.push_back(gapNote(range.count));
        if (range.count == 0) return;
        if (range.least == range.most) {
            notes.push_back(name_ + " stands still at " + shown(range.most));
            return;
        }
        addClipNote(clippedShare(probe_, range, 1.0), range.most, notes);
        addClipNote(clippedShare(probe_, range, -1.0), range.least, notes);
    }

private:
    std::string shown(double value) const {
        return shortText(value) + (unit_.empty() ? "" : ' ' + unit_);
    }

    std::string gapNote(std::size_t valid) const {
        const auto whole = static_cast<double>(probe_.size());
        const double percent = 100.0 * (whole - static_cast<double>(valid)) / whole;
        return name_ + " has gaps: " + shortText(percent, 2) + " % of its values are missing";
    }

    void addClipNote(double share, double limit, std::vector<std::string>& notes) const {
        if (share == 0.0) return;
        notes.push_back(name_ + " is clipped at " + shown(limit) + ": " +
                        shortText(100.0 * share, 2) + " % of its values lie there");
    }

    std::string name_;
    SampleView probe_;
    std::string unit_;
};

}  // namespace

std::vector<std::string> checkProbes(const Recording& recording) {
    std::vector<std::string> notes;
    ProbeCheck("probe X", recording.x, recording.machine.unit).addNotes(notes);
    ProbeCheck("probe Y", recording.y, recording.machine.unit).addNotes(notes);
    return notes;
}

std::vector<std::string> checkPrecession(const OrderVectors& first, const MachineFacts& machine) {
    if (ellipseOf(first, machine).precession != Precession::Backward) return {};
    return {
        "1X runs against the rotation: are the probes swapped or reversed, or is the rotation "
        "entered the wrong way?"};
}

}  // namespace Rotavue::Workbench
