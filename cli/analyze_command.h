#pragma once

#include "cli/analysis_report.h"
#include "cli/command.h"
#include "cli/compensation_arguments.h"
#include "cli/recording_arguments.h"
#include "cli/rest_arguments.h"

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// Tells speed, orders and gap of a recording.
class AnalyzeCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    void declareAnalysis(CLI::App& command);

    /// The options as they were given, checked. Raises `UsageError`.
    AnalysisOrder analysisOrder() const;

    /// Keeps the averaged orbit of the span, where that was asked for.
    void saveReference(const Workbench::Recording& recording, const AnalysisOrder& order) const;

    std::string file_;
    bool json_ = false;
    std::optional<std::string> orders_;
    std::optional<std::string> span_;
    std::optional<std::string> window_;
    std::optional<std::string> amplitude_;
    std::optional<std::string> reference_;
    bool force_ = false;
    RestArguments rest_;
    CompensationArguments compensation_;
    RecordingArguments arguments_;
};

}  // namespace Rotavue::Cli
