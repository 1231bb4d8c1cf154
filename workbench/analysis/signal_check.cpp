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

std::vector<double> valuesOf(const std::vector<double>& probe, double sign) {
    std::vector<double> values;
    values.reserve(probe.size());
    for (const double value : probe) {
        if (std::isfinite(value)) values.push_back(sign * value);
    }
    return values;
}

double largestBelow(const std::vector<double>& values, double bound) {
    double largest = -std::numeric_limits<double>::infinity();
    for (const double value : values) {
        if (value < bound) largest = std::max(largest, value);
    }
    return largest;
}

std::size_t longestRunOf(const std::vector<double>& values, double sought) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (const double value : values) {
        run = value == sought ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

// The share of the values at the largest one if they are clipped there; else 0.
double clippedShare(const std::vector<double>& values, double largest) {
    const auto timesOf = [&](double value) {
        return static_cast<std::size_t>(std::count(values.begin(), values.end(), value));
    };
    const std::size_t atLimit = timesOf(largest);
    const double share = static_cast<double>(atLimit) / static_cast<double>(values.size());
    const std::size_t atNext = timesOf(largestBelow(values, largest));
    const bool clipped = share >= LeastShareAtLimit && atLimit >= LeastTimesNext * atNext &&
                         longestRunOf(values, largest) >= LeastRun;
    return clipped ? share : 0.0;
}

class ProbeCheck {
public:
    ProbeCheck(std::string name, const std::vector<double>& probe, std::string unit)
        : name_(std::move(name)), probe_(probe), unit_(std::move(unit)) {}

    void addNotes(std::vector<std::string>& notes) const {
        const std::vector<double> values = valuesOf(probe_, 1.0);
        if (values.size() < probe_.size()) notes.push_back(gapNote(values.size()));
        if (values.empty()) return;
        const auto [least, most] = std::minmax_element(values.begin(), values.end());
        if (*least == *most) {
            notes.push_back(name_ + " stands still at " + shown(*most));
            return;
        }
        addClipNote(clippedShare(values, *most), *most, notes);
        addClipNote(clippedShare(valuesOf(probe_, -1.0), -*least), *least, notes);
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
