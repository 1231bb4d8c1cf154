#pragma once

#include "cli/command.h"
#include "cli/plot_arguments.h"

namespace Rotavue::Cli {

/// Prints what a control that shows recordings copies to the clipboard.
class CopyCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    /// The options as they were given, checked. Raises `UsageError`.
    RenderOptions options() const;

    PlotArguments arguments_;
};

}  // namespace Rotavue::Cli
