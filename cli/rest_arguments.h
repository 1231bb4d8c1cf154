#pragma once

#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/time_span.h"

#include <CLI/App.hpp>

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// The options that say how the shaft rests in its bearing.
class RestArguments {
public:
    /// What needs them begins their help.
    void declare(CLI::App& command, const char* group, const std::string& purpose);

    /// Where it rests, and when; unset where that is not given. Raises `UsageError`.
    std::optional<Workbench::RestPosition> place() const;
    std::optional<Workbench::TimeSpan> span() const;

private:
    std::optional<std::string> place_;
    std::optional<std::string> span_;
};

}  // namespace Rotavue::Cli
