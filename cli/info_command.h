#pragma once

#include "cli/command.h"
#include "cli/recording_arguments.h"

#include <string>

namespace Rotavue::Cli {

/// Tells what is in a recording.
class InfoCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    std::string file_;
    bool json_ = false;
    RecordingArguments arguments_;
};

}  // namespace Rotavue::Cli
