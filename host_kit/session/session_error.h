#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace Rotavue::HostKit {

/// Why a file is no session: where (a JSON pointer), what is wrong, what is allowed. `what()` is
/// one line of well-formed UTF-8, whatever the file holds.
class SessionError : public std::runtime_error {
public:
    SessionError(const std::string& pointer, std::string_view wrong);
};

/// A text of the file as an error quotes it: shortened, in quotes, without control characters.
std::string inQuotes(std::string_view text);

}  // namespace Rotavue::HostKit
