#pragma once

#include "cli/usage_error.h"

#include <CLI/App.hpp>

namespace Rotavue::Cli {

/// One sub-command.
class Command {
public:
    virtual ~Command() = default;

    /// Adds itself with its options and its help. Called once, before anything is parsed.
    virtual CLI::App* declare(CLI::App& program) = 0;

    /// Does what the command line asked for and gives the program's exit status. Raises
    /// `UsageError` for what cannot be asked for, any other exception for what fails.
    virtual int run() = 0;
};

}  // namespace Rotavue::Cli
