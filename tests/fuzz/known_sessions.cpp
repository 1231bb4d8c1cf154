#include "tests/fuzz/known_sessions.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace Rotavue::Fuzz {

namespace {

std::vector<std::string> sessionFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SESSIONS_FOLDER)) {
        if (entry.path().extension() == ".json") files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::deque<HostKit::Session> readSessions() {
    std::deque<HostKit::Session> sessions;
    for (const std::string& file : sessionFiles()) {
        std::ostringstream text;
        text << std::ifstream(file, std::ios::binary).rdbuf();
        sessions.emplace_back(text.str());
    }
    return sessions;
}

}  // namespace

const std::deque<HostKit::Session>& knownSessions() {
    static const std::deque<HostKit::Session> Sessions = readSessions();
    return Sessions;
}

}  // namespace Rotavue::Fuzz
