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
};

ValueRange rangeOf(const std::vector<double>& values) {
    ValueRange range;
    for (const double value : values) {
        if (!std::isfinite(value)) continue;
        ++range.count;
        range.least = std::min(range.least, value);
        range.most = std::max(range.most, value);
    }
    return range;
}

std::size_t timesOf(const std::vector<double>& values, double sought) {
    return static_cast<std::size_t>(std::count(values.begin(), values.end(), sought));
}

// The value nearest to a limit on its inner side; `sign` is that of the way to the limit.
double nextTo(const std::vector<double>& values, double limit, double sign) {
    double next = -std::numeric_limits<double>::infinity();
    for (const double value : values) {
        if (sign * value < sign * limit) next = std::max(next, sign * value);
    }
    return sign * next;
}

std::size_t longestRunOf(const std::vector<double>& values, double sought) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (const double value : values) {
        if (!std::isfinite(value)) continue;
        run = value == sought ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

// The share of the values at a limit if they are clipped there; else 0. Hardly any are at the limit
// of a signal that is not: that much is known from one look at the values.
double clippedShare(const std::vector<double>& values, std::size_t count, double limit,
                    double sign) {
    const std::size_t atLimit = timesOf(values, limit);
    const double share = static_cast<double>(atLimit) / static_cast<double>(count);
    if (share < LeastShareAtLimit) return 0.0;
    const std::size_t atNext = timesOf(values, nextTo(values, limit, sign));
    const bool clipped =
        atLimit >= LeastTimesNext * atNext && longestRunOf(values, limit) >= LeastRun;
    return clipped ? share : 0.0;
}

class ProbeCheck {
public:
    ProbeCheck(std::string name, const std::vector<double>& probe, std::string unit)
        : name_(std::move(name)), probe_(probe), unit_(std::move(unit)) {}

    void addNotes(std::vector<std::string>& notes) const {
        const ValueRange range = rangeOf(probe_);
        if (range.count < probe_.size()) notes.push_back(gapNote(range.count));
        if (range.count == 0) return;
        if (range.least == range.most) {
            notes.push_back(name_ + " stands still at " + shown(range.most));
            return;
        }
        addClipNote(clippedShare(probe_, range.count, range.most, 1.0), range.most, notes);
        addClipNote(clippedShare(probe_, range.count, range.least, -1.0), range.least, notes);
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
    const std::vector<double>& probe_;
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
