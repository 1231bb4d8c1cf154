#pragma once

#include "cli/command.h"
#include "cli/session_picture.h"

#include <optional>
#include <string>
#include <utility>

namespace Rotavue::Cli {

/// Plays a session, or a folder of sessions, on the loaded plug-in.
class PlayCommand final : public Command {
public:
    /// Without somebody who paints, the command has no option for a picture.
    explicit PlayCommand(SessionPictureOpener openPicture = {})
        : openPicture_(std::move(openPicture)) {}

    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    void declarePicture(CLI::App& command);
    int playOne() const;
    int playAll() const;

    SessionPictureOpener openPicture_;
    std::string session_;
    std::optional<std::string> calls_;
    std::optional<std::string> picture_;
    std::optional<std::string> out_;
    std::optional<std::string> module_;
    bool force_ = false;
};

}  // namespace Rotavue::Cli
