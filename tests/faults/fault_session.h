#pragma once

#include "tests/sessions/session_files.h"

#include <cstdint>
#include <functional>
#include <streambuf>
#include <string>
#include <vector>

/// A session that is played again and again with something of its host failing.
namespace Rotavue::HostKit {

/// The lines of a log.
using LogLines = std::vector<std::string>;

/// Takes a log without a further allocation: a stream that fails in one goes on without a word.
class ReadyLog : public std::streambuf {
public:
    ReadyLog() { setp(text_.data(), text_.data() + text_.size()); }

    LogLines lines() const;

private:
    std::vector<char> text_ = std::vector<char>(std::size_t{64} << 10);
};

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

/// One session of the folder with more steps at its end. The first two attach the control and draw
/// a whole frame: what a host does when it goes on after an error. Then the host becomes a sound
/// one with a measurement of its own, and attaches and draws once more, and once again for each
/// fault that the session plans itself: those that it did not reach come true before the last
/// frame.
class FaultSession {
public:
    explicit FaultSession(const std::filesystem::path& file);

    /// Plays it on the built module. `prepare` gets the host before the first step.
    LogLines play(const std::function<void(MemoryHost&)>& prepare = {}) const;

    /// The same with a log that tells of no calls.
    void playQuietly(ReadyLog& log) const;

    /// How many lines of a log come before the host becomes a sound one.
    std::size_t triedPart(const LogLines& log) const;

private:
    explicit FaultSession(const Json& json);

    Session session_;
    std::size_t triedSteps_;
};

/// The place of the line that tells how the message ended in whose course the line at `place`
/// stands.
std::size_t endOfMessage(const LogLines& log, std::size_t place);

/// What the last frame of a log raised; empty for a frame that was drawn.
std::string closingError(const LogLines& log);

/// True for a log at whose end nothing was held of the host.
bool nothingHeld(const LogLines& log);

}  // namespace Rotavue::HostKit
