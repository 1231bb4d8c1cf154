#pragma once

#include <string>
#include <string_view>

/// Text from one encoding to another. A wide text has one character per code point, or UTF-16 where
/// the platform's wide character has 16 bits; all four conversions hold for both.
namespace Meridax::VisualControls::Api {

/// UTF-16, always well-formed: a lone surrogate or a number beyond 0x10FFFF becomes U+FFFD.
std::u16string utf16FromWide(std::wstring_view text);

/// The wide form of UTF-16; a lone surrogate becomes U+FFFD.
std::wstring wideFromUtf16(std::u16string_view text);

/// The wide form of UTF-8. Raises `std::range_error` ("bad conversion") for bytes that are none.
std::wstring wideFromUtf8(std::string_view text);

/// UTF-8. Raises `std::range_error` ("bad conversion") for a lone surrogate or a number beyond
/// 0x10FFFF.
std::string utf8FromWide(std::wstring_view text);

}  // namespace Meridax::VisualControls::Api
