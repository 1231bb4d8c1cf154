#include "cli/usage_error.h"

#include "workbench/recording/recording_error.h"

namespace Rotavue::Cli {

UsageError::UsageError(std::string_view option, std::string_view found, std::string_view allowed)
    : std::runtime_error(std::string(option) + ": found " + Workbench::inQuotes(found) +
                         ", allowed: " + std::string(allowed)) {}

}  // namespace Rotavue::Cli
