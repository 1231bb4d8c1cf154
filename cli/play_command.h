#pragma once

#include "cli/command.h"

#include <optional>
#include <string>

namespace Rotavue::Cli {

/// Plays a session, or a folder of sessions, on the loaded plug-in.
class PlayCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    int playOne() const;
    int playAll() const;

    std::string session_;
    std::optional<std::string> calls_;
    std::optional<std::string> picture_;
    std::optional<std::string> out_;
    std::optional<std::string> module_;
    bool force_ = false;
};

}  // namespace Rotavue::Cli
