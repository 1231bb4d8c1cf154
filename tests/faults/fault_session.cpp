#include "tests/faults/fault_session.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace Rotavue::HostKit {

namespace {

const Json Attach =
    Json::parse(R"({"message": 2, "args": [{"object": "app"}, {"object": "control"}]})");
const Json Draw =
    Json::parse(R"({"message": 42, "args": [{"object": "canvas"}, 0, 0, 400, 300, 0, 0, 1]})");

/// Back to the host as it is without a description, and a measurement that is.
const Json Defaults = Json::parse(
    R"({"patch": {"nulls": null, "host": null, "canvas": null, "panel": null, "assigned": null}})");
const Json SoundMeasurement = Json::parse(R"({"patch": {
    "host": {"sampleRate": 8.0, "blockSize": 8, "acquiredSampleCount": 8, "currentPosition": [1, 0]},
    "channels": {
        "sound orbit": {"sampleCount": 8, "sampleCounter": 8, "sampleRate": 8.0,
            "values": {"4": [0, 1, 2, 1, 0, -1, -2, -1], "5": [2, 1, 0, -1, -2, -1, 0, 1]}},
        "sound tacho": {"sampleCount": 8, "sampleCounter": 8, "sampleRate": 8.0,
            "values": {"0": [0, 0.5]}}},
    "assigned": {"groups": [{"channels": ["sound orbit", "sound tacho"]}]}}})");

std::size_t plannedFaultsOf(const Json& session) {
    const Json& steps = session["steps"];
    return static_cast<std::size_t>(std::count_if(
        steps.begin(), steps.end(), [](const Json& step) { return step.contains("fail"); }));
}

std::string withClosingSteps(Json session) {
    const std::size_t planned = plannedFaultsOf(session);
    Json& steps = session["steps"];
    steps.insert(steps.end(), {Attach, Draw, Defaults, SoundMeasurement});
    for (std::size_t i = 0; i <= planned; ++i)
        steps.insert(steps.end(), {Attach, Draw});
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

LogLines ReadyLog::lines() const {
    return toLines({pbase(), pptr()});
}

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
    : FaultSession(Json::parse(readText(file))) {}

FaultSession::FaultSession(const Json& json)
    : session_(withClosingSteps(json)), triedSteps_(json["steps"].size() + 2) {}

LogLines FaultSession::play(const std::function<void(MemoryHost&)>& prepare) const {
    std::ostringstream log;
    Player player(session_, builtModule(), log, {allGroups(), nullptr});
    if (prepare) prepare(player.host());
    player.play();
    return toLines(log.str());
}

void FaultSession::playQuietly(ReadyLog& log) const {
    std::ostream stream(&log);
    Player(session_, builtModule(), stream, {CallGroups(), nullptr}).play();
    if (stream.bad()) throw std::length_error("a longer log than there is room for");
}

std::size_t endOfMessage(const LogLines& log, std::size_t place) {
    while (!log[place].starts_with("{\"step\""))
        ++place;
    return place;
}

std::size_t FaultSession::triedPart(const LogLines& log) const {
    const std::string last = "{\"step\": " + std::to_string(triedSteps_ - 1) + ',';
    const auto end = std::find_if(log.begin(), log.end(),
                                  [&](const std::string& line) { return line.starts_with(last); });
    return static_cast<std::size_t>(end - log.begin());
}

std::string closingError(const LogLines& log) {
    const LogLine draw(log.at(log.size() - 2));
    return draw.message == 42 ? draw.error : "no frame";
}

bool nothingHeld(const LogLines& log) {
    return !log.empty() && log.back().ends_with("\"references\": 0}}");
}

}  // namespace Rotavue::HostKit
