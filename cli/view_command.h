#pragma once

#include "cli/command.h"
#include "cli/recording_arguments.h"
#include "workbench/window/window_order.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Opens the window. It lies in a library of its own beside the program, and with it all of Qt's
/// widgets.
class ViewCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    Workbench::WindowOrder order() const;

    std::vector<std::string> recordings_;
    std::optional<std::string> show_;
    std::optional<std::string> setup_;
    std::optional<std::string> at_;
    std::optional<std::string> module_;
    std::optional<std::string> theme_;
    std::optional<std::string> size_;
    std::optional<std::string> scale_;
    std::optional<std::string> screenshot_;
    bool force_ = false;
    bool resetSettings_ = false;
    RecordingArguments recordingArguments_;
};

}  // namespace Rotavue::Cli
