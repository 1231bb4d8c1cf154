#pragma once

#include <bit>
#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// A division that is made again only when one of its numbers has changed in any bit. The host is
/// asked for the cursor and the rates at each sample, and mostly answers what it did before: the
/// time of a sample then need not wait for a division.
class RepeatedQuotient {
public:
    double of(double dividend, double divisor) noexcept {
        if (!isSame(dividend, dividend_) || !isSame(divisor, divisor_)) [[unlikely]] {
            dividend_ = dividend;
            divisor_ = divisor;
            quotient_ = dividend / divisor;
        }
        return quotient_;
    }

private:
    static bool isSame(double a, double b) noexcept {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    }

    double dividend_ = 0.0;
    double divisor_ = 1.0;
    double quotient_ = 0.0;
};

}  // namespace Meridax::VisualControls::Rotavue
