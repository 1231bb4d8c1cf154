#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace Rotavue::HostKit {

/// The time stamps of a channel's samples, in seconds and in any order. They are walked through
/// once, where they are set; what is asked of them afterwards is found by bisection, however many
/// they are.
class TimeStamps {
public:
    TimeStamps() = default;
    TimeStamps(std::vector<double> list);
    TimeStamps(std::initializer_list<double> list) : TimeStamps(std::vector<double>(list)) {}

    const std::vector<double>& list() const { return list_; }

    /// The stamp at that place, or 0.0 where there is none.
    double at(std::int32_t index) const;

    /// The greatest index whose stamp is not above that time, whatever stands before it; 0 where
    /// there is none. No stamp is above a time that is no number, nor one that is no number above a
    /// time.
    std::int32_t lastNotAbove(double seconds) const;

private:
    std::vector<double> list_;
    std::vector<double> leastFrom_;  ///< the least stamp from each place on
};

}  // namespace Rotavue::HostKit
