#pragma once

#include "cli/render_options.h"

#include <CLI/App.hpp>

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// The options that say how much of the recordings is shown.
class SpanArguments {
public:
    void declare(CLI::App& command, const char* group);

    /// Fills in what was given. Raises `UsageError`.
    void read(RenderOptions& options) const;

private:
    std::optional<std::string> revolutions_;
    std::optional<std::string> milliseconds_;
    std::optional<std::string> at_;
};

}  // namespace Rotavue::Cli
