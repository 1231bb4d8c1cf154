#pragma once

#include "host_kit/memory/operation.h"
#include "host_kit/session/player.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <string_view>

namespace Rotavue::HostKit {

/// How a program that plays sessions ends.
enum class PlayStatus {
    Done = 0,       ///< all steps were sent
    NoOutput = 1,   ///< a log cannot be written
    NoSession = 2,  ///< the file cannot be read or is no session
    NoModule = 3,   ///< the plug-in cannot be loaded
};

struct PlayOptions {
    LogOptions log;
    std::optional<std::filesystem::path> module;  ///< else the registered one, or that beside the
                                                  ///< program
};

/// The groups that a text such as "draw,panel" or "all" names; nothing for a text with another
/// name in it.
std::optional<CallGroups> parseCallGroups(std::string_view text);

/// Plays the session in a file and writes its log to `out`. Where that does not work out, one line
/// on `errors` says why.
PlayStatus playSession(const std::filesystem::path& file, const PlayOptions& options,
                       std::ostream& out, std::ostream& errors);

/// Plays every session (`*.json`) below a folder in the order of their names, the module loaded
/// once, and writes each log as `*.log` at the same place below `outFolder`. Goes on after a
/// session that does not work out; the status is the greatest of all.
PlayStatus playFolder(const std::filesystem::path& folder, const std::filesystem::path& outFolder,
                      const PlayOptions& options, std::ostream& errors);

}  // namespace Rotavue::HostKit
