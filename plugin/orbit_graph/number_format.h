#pragma once

#include <cstdint>
#include <string>

namespace Meridax::VisualControls::Rotavue {

/// More digits behind the point than any `double` has: the smallest one ends after 1,074.
inline constexpr std::int32_t MostDecimals = 1074;

/// "%.3f" for 3 decimals; the number is held within 0 and `MostDecimals`.
std::wstring valueFormat(std::int32_t decimals);

/// The value as text, with the decimal point of the C library's locale and without grouping.
/// `format` has one conversion of a `double` with at most `MostDecimals` decimals.
std::wstring formatValue(const std::wstring& format, double value);

/// What of a name or unit stands in a formatted text: it ends at the first zero character.
inline std::wstring inserted(const std::wstring& text) {
    return text.c_str();
}

}  // namespace Meridax::VisualControls::Rotavue
