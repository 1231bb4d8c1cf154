#include "tests/faults/fault_session.h"

#include <algorithm>
#include <sstream>

namespace Rotavue::HostKit {

namespace {

std::string withClosingSteps(const std::string& text) {
    Json session = Json::parse(text);
    session["steps"].push_back(
        Json::parse(R"({"message": 2, "args": [{"object": "app"}, {"object": "control"}]})"));
    session["steps"].push_back(
        Json::parse(R"({"message": 42, "args": [{"object": "canvas"}, 0, 0, 400, 300, 0, 0, 1]})"));
    return session.dump();
}

bool asksForObject(const std::string& call) {
    const auto operation = findOperation(call);
    return operation && rowOf(*operation).answer == Answer::Object;
}

LogLines toLines(const std::string& log) {
    LogLines lines;
    std::istringstream in(log);
    for (std::string text; std::getline(in, text);)
        lines.push_back(text);
    return lines;
}

}  // namespace

LogLine::LogLine(const std::string& text) {
    const Json json = Json::parse(text);
    call = json.value("call", "");
    asksForObject = HostKit::asksForObject(call);
    object = asksForObject && json.contains("result") && !json["result"].is_null();
    failed = json.value("failed", "");
    message = json.value("message", -1);
    if (json.contains("error")) error = json["error"].dump();
}

FaultSession::FaultSession(const std::filesystem::path& file)
    : session_(withClosingSteps(readText(file))),
      hasOwnFault_(readText(file).find("\"fail\"") != std::string::npos) {}

LogLines FaultSession::play(const std::function<void(MemoryHost&)>& prepare) const {
    std::ostringstream log;
    Player player(session_, builtModule(), log, {allGroups(), nullptr});
    if (prepare) prepare(player.host());
    player.play();
    return toLines(log.str());
}

LogLines FaultSession::playQuietly() const {
    std::ostringstream log;
    Player(session_, builtModule(), log, {CallGroups(), nullptr}).play();
    return toLines(log.str());
}

std::size_t endOfMessage(const LogLines& log, std::size_t place) {
    while (!log[place].starts_with("{\"step\""))
        ++place;
    return place;
}

bool closingFrameWorks(const LogLines& log) {
    if (log.size() < 2) return false;
    const LogLine draw(log[log.size() - 2]);
    return draw.message == 42 && draw.error.empty();
}

bool nothingHeld(const LogLines& log) {
    return !log.empty() && log.back().ends_with("\"references\": 0}}");
}

}  // namespace Rotavue::HostKit
