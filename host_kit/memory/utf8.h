#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts cross to the plug-in as wide strings and stand in files, logs and tests as UTF-8. What
/// is not well-formed on either side becomes U+FFFD.
namespace Rotavue::HostKit {

std::string toUtf8(std::wstring_view text);
std::wstring fromUtf8(std::string_view text);

/// The text with every byte that is not part of well-formed UTF-8 replaced by U+FFFD.
std::string wellFormed(std::string_view text);

/// The number of code points.
std::size_t codePointCount(std::wstring_view text);

}  // namespace Rotavue::HostKit
