#pragma once

#include "cli/compensation_arguments.h"
#include "cli/curve_arguments.h"
#include "cli/recording_arguments.h"
#include "cli/render_options.h"
#include "cli/setup_choice.h"
#include "cli/span_arguments.h"

#include <CLI/App.hpp>

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// The options of every command that shows recordings to a control: which recordings, what of them,
/// with which setup, by which module.
class PlotArguments {
public:
    /// The heading of what is shown in the help.
    static constexpr const char* ShownGroup = "What is shown";

    void declareRecordings(CLI::App& command);
    void declareShown(CLI::App& command);
    void declareRest(CLI::App& command);  ///< what stands last in the help

    /// What was given, checked, without the setup. Raises `UsageError`.
    RenderOptions options() const;

    /// The setup file, where one was given. Raises `RecordingError`.
    std::optional<SetupChoice> setup() const;

private:
    std::vector<std::string> recordings_;
    SpanArguments span_;
    CurveArguments curves_;
    CompensationArguments compensation_;
    RecordingArguments recordingArguments_;
    std::optional<std::string> setup_;
    std::optional<std::string> module_;
    bool quiet_ = false;
};

}  // namespace Rotavue::Cli
