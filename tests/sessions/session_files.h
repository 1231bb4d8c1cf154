#pragma once

#include "host_kit/loader/module.h"
#include "host_kit/session/play.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

/// The sessions of this folder, played on the built module.
namespace Rotavue::HostKit {

inline const std::filesystem::path SessionFolder = SESSIONS_FOLDER;

/// Where the logs of this run go, for a look and for `tools/approve`.
inline const std::filesystem::path GotFolder = SESSIONS_GOT_FOLDER;

inline std::string readText(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

/// Every session, in the order of their names.
inline std::vector<std::filesystem::path> sessionFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SessionFolder)) {
        if (entry.path().extension() == ".json") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// The module, loaded once for all sessions.
inline std::shared_ptr<Module> builtModule() {
    static const auto Loaded = std::make_shared<Module>(BUILT_MODULE);
    return Loaded;
}

inline std::string logOf(const std::filesystem::path& file, CallGroups groups) {
    const Session session(readText(file));
    std::ostringstream log;
    Player(session, builtModule(), log, {groups, nullptr}).play();
    return log.str();
}

/// The groups that a session's expected log shows: those that its name has behind a point, as in
/// "average.draw.json" and "attach.all.json", else those that are shown by default.
inline CallGroups groupsOf(const std::filesystem::path& file) {
    const std::string suffix = file.stem().extension().string();
    if (suffix.empty()) return defaultGroups();
    return parseCallGroups(suffix.substr(1)).value();
}

}  // namespace Rotavue::HostKit
