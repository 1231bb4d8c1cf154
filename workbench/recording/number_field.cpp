#include "workbench/recording/number_field.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t LongestWithComma = 100;

NumberField readWithPoint(std::string_view field) {
    const char* end = field.data() + field.size();
    double value = 0.0;
    const auto [stop, fault] = std::from_chars(field.data(), end, value);
    if (stop != end || fault == std::errc::invalid_argument) return {FieldKind::Text, 0.0};
    if (fault == std::errc::result_out_of_range) return {FieldKind::OutOfRange, 0.0};
    if (!std::isfinite(value)) return {FieldKind::Gap, Gap};
    if (std::abs(value) > LargestReading) return {FieldKind::OutOfRange, 0.0};
    return {FieldKind::Number, value};
}

NumberField readWithComma(std::string_view field) {
    std::array<char, LongestWithComma> copy;
    const bool plain = field.size() <= copy.size() && field.find('.') == std::string_view::npos;
    if (!plain) return {FieldKind::Text, 0.0};
    std::replace_copy(field.begin(), field.end(), copy.begin(), ',', '.');
    return readWithPoint({copy.data(), field.size()});
}

}  // namespace

NumberField readNumber(std::string_view field) {
    if (field.empty()) return {FieldKind::Gap, Gap};
    if (field.starts_with('+') && !field.starts_with("+-")) field.remove_prefix(1);
    const NumberField number = readWithPoint(field);
    const bool retry = number.kind == FieldKind::Text && field.find(',') != std::string_view::npos;
    return retry ? readWithComma(field) : number;
}

}  // namespace Rotavue::Workbench
