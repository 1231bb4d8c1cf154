#pragma once

#include "plugin/framework/host/bounded_number.h"

#include <cerrno>
#include <clocale>
#include <cwchar>
#include <stdexcept>
#include <string>

namespace Meridax::Host {

/// The number at the start of a text that the host gave, as a 32-bit float: leading white space is
/// skipped, the longest number is taken and what follows it is ignored. The decimal point is that
/// of the C library. Raises `std::invalid_argument` for a text without a number and
/// `std::out_of_range` for one that a float cannot hold; the two texts are part of the contract.
inline float leadingFloat(const std::wstring& text) {
    const auto point = static_cast<wchar_t>(*std::localeconv()->decimal_point);
    if (hasLongNumber(text, point)) return leadingFloat(boundedNumber(text, point));
    const int savedErrno = errno;
    errno = 0;
    wchar_t* end = nullptr;
    const float number = std::wcstof(text.c_str(), &end);
    const bool outOfRange = errno == ERANGE;
    errno = savedErrno;
    if (end == text.c_str()) throw std::invalid_argument("invalid stof argument");
    if (outOfRange) throw std::out_of_range("stof argument out of range");
    return number;
}

}  // namespace Meridax::Host
