#pragma once

#include <string>
#include <vector>

namespace Meridax::Utils::Dcom::Utils::StringHelper {

struct TextPair {
    std::string narrow;
    std::wstring wide;
};

// One to four bytes, each at the two ends of its range, by the bit patterns of UTF-8.
inline const std::vector<TextPair> SameTexts = {
    {"", L""},
    {"Shaft", L"Shaft"},
    {"\x7F", L"\u007F"},
    {"\xC2\x80", L"\u0080"},
    {"\xC2\xB5m", L"\u00B5m"},
    {"\xDF\xBF", L"\u07FF"},
    {"\xE0\xA0\x80", L"\u0800"},
    {"\xEF\xBF\xBF", L"\uFFFF"},
    {"\xF0\x90\x80\x80", L"\U00010000"},
    {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
};

// A lone byte, a stray and a missing continuation, overlong forms, a surrogate, too large a number.
inline const std::vector<std::string> InvalidTexts = {
    "\xFF",
    "\x80",
    "a\xC3",
    "\xC3(",
    "\xC0\x80",
    "\xE0\x9F\xBF",
    "\xF0\x8F\xBF\xBF",
    "\xED\xA0\x80",
    "\xF4\x90\x80\x80",
    "\xF8\x88\x80\x80\x80",
    "valid and then \xE2\x82",
};

}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
