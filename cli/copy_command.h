#pragma once

#include "cli/command.h"
#include "cli/curve_arguments.h"
#include "cli/recording_arguments.h"
#include "cli/render_options.h"
#include "cli/span_arguments.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Prints what a control that shows recordings copies to the clipboard.
class CopyCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    /// The options as they were given, checked. Raises `UsageError`.
    RenderOptions options() const;

    std::vector<std::string> recordings_;
    std::optional<std::string> setup_;
    SpanArguments span_;
    CurveArguments curves_;
    RecordingArguments recordingArguments_;
    std::optional<std::string> module_;
    bool quiet_ = false;
};

}  // namespace Rotavue::Cli
