#include "workbench/analysis/short_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Rotavue::Workbench {
namespace {

constexpr double LargestPlain = 1e15;

int digitsBeforePoint(double value) {
    const double size = std::round(std::abs(value));
    return size < 1.0 ? 1 : static_cast<int>(std::log10(size)) + 1;
}

}  // namespace

std::string shortText(double value, int digits) {
    char buffer[40];
    const int whole = std::abs(value) < LargestPlain ? digitsBeforePoint(value) : 0;
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value,
                                   std::chars_format::general, std::max(digits, whole));
    return {buffer, end.ptr};
}

}  // namespace Rotavue::Workbench
