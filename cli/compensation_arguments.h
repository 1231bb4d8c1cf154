#pragma once

#include "cli/run_out_remover.h"

#include <CLI/App.hpp>

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// The options that say which run-out is taken away from the recordings.
class CompensationArguments {
public:
    void declare(CLI::App& command);

    /// What was asked for; nothing where the recordings stay as they are. Raises `UsageError`.
    std::optional<CompensationChoice> choice() const;

private:
    std::optional<std::string> form_;
    std::optional<std::string> slowRoll_;
    std::optional<std::string> span_;
};

}  // namespace Rotavue::Cli
