#pragma once

#include <algorithm>
#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// How many places one pass over the channels may still read, of all curves together. Sample
/// counts, array sizes and the length of the history come from outside and may be anything; this
/// keeps time and memory within bounds whatever they say. What lies beyond is not read: a curve
/// ends early, a search ends without a find.
///
/// The characters of names and units are allowed for in the same way: some two thousand for each of
/// as many curves as are walked through.
class ReadAllowance {
public:
    /// The longest time of the property panel, 10,000 ms, at a master rate of 1 MHz: a hundred
    /// times the bandwidth of a displacement probe. The points of a whole frame then take 240 MB
    /// at most.
    static constexpr std::int64_t Places = 10'000'000;

    void renew() noexcept { left_ = Places; }

    /// Takes one place; false when none is left.
    bool take() noexcept {
        if (left_ == 0) return false;
        --left_;
        return true;
    }

    /// Takes as many of the wanted places as are left, and says how many those are. A negative
    /// wish is none.
    std::int32_t take(std::int64_t wanted) noexcept {
        const std::int64_t given = std::clamp<std::int64_t>(wanted, 0, left_);
        left_ -= given;
        return static_cast<std::int32_t>(given);
    }

private:
    std::int64_t left_ = Places;
};

}  // namespace Meridax::VisualControls::Rotavue
