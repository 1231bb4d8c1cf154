#pragma once

#include "host_kit/session/player.h"

#include <functional>
#include <memory>
#include <string>

namespace Rotavue::Cli {

/// The last frame of a session as a picture file.
class SessionPicture {
public:
    virtual ~SessionPicture() = default;

    /// What gives the player the canvas for the frame.
    virtual HostKit::PictureMaker maker() = 0;

    /// Writes the file once the session was played. Raises `std::runtime_error` for a session that
    /// draws no frame, and `OutputError`.
    virtual void write() = 0;
};

/// Begins a picture with that file name, which may replace a file that is there.
using SessionPictureOpener =
    std::function<std::unique_ptr<SessionPicture>(const std::string& file, bool replace)>;

}  // namespace Rotavue::Cli
