#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts cross to the plug-in as wide strings and stand in files, logs and tests as UTF-8.
namespace Rotavue::HostKit {

/// UTF-8; what is no character becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

/// The text itself where it is well-formed UTF-8, else with '?' for each byte beyond ASCII.
std::string wellFormed(const std::string& text);

/// The number of code points.
std::size_t codePointCount(std::wstring_view text);

}  // namespace Rotavue::HostKit
