#pragma once

#include "cli/render_options.h"
#include "cli/rest_arguments.h"

#include <CLI/App.hpp>

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// The options that say which curves are made of a recording, and how.
class CurveArguments {
public:
    void declare(CLI::App& command);

    /// Fills in what was given. Raises `UsageError`.
    void read(RenderOptions& options) const;

private:
    void readShaftCenter(Workbench::ShaftCenterChoice& choice) const;

    std::optional<std::string> show_;
    std::optional<std::string> speed_;
    std::optional<std::string> interval_;
    RestArguments rest_;
    std::optional<std::string> labels_;
};

}  // namespace Rotavue::Cli
