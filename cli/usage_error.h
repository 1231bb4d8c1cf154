#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Rotavue::Cli {

/// How the program ends. A session player adds 3 for a plug-in that cannot be loaded.
enum class ExitStatus : std::uint8_t { Done = 0, Failed = 1, WrongUse = 2 };

/// A command line that asks for what there is not. `what()` is one line.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// An option with a value that it does not take.
    UsageError(std::string_view option, std::string_view found, std::string_view allowed);
};

}  // namespace Rotavue::Cli
