#pragma once

#include "tests/sessions/session_files.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A session that is played again and again with something of its host failing.
namespace Rotavue::HostKit {

/// The lines of a log.
using LogLines = std::vector<std::string>;

/// A line of a log, as far as a fault can change it.
struct LogLine {
    explicit LogLine(const std::string& text);

    std::string call;            ///< "IHostApp.getData"; empty for a line that tells of no call
    bool asksForObject = false;  ///< the operation is one that answers an object or null
    bool object = false;         ///< it did answer one
    std::string failed;          ///< the status of a call that failed
    int message = -1;            ///< the code of a message; -1 for another line
    std::string error;           ///< what the message raised, as the log spells it
};

/// One session of the folder with two more steps at its end, which attach the control and draw a
/// whole frame: what a host does when it goes on after an error.
class FaultSession {
public:
    explicit FaultSession(const std::filesystem::path& file);

    /// Plays it on the built module. `prepare` gets the host before the first step.
    LogLines play(const std::function<void(MemoryHost&)>& prepare = {}) const;

    /// The same with a log that tells of no calls.
    LogLines playQuietly() const;

    /// True for a session that plans faults of its own: one that was not reached may come true in
    /// the closing frame.
    bool hasOwnFault() const { return hasOwnFault_; }

private:
    Session session_;
    bool hasOwnFault_;
};

/// The place of the line that tells how the message ended in whose course the line at `place`
/// stands.
std::size_t endOfMessage(const LogLines& log, std::size_t place);

/// True for a log whose closing frame raised nothing.
bool closingFrameWorks(const LogLines& log);

/// True for a log at whose end nothing was held of the host.
bool nothingHeld(const LogLines& log);

}  // namespace Rotavue::HostKit
