#include "examples/example_facts.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "examples/example_wav.h"

namespace Rotavue::Examples {
namespace {

using Json = nlohmann::ordered_json;

constexpr double SpeedStep = 300.0;  // rpm, of the table of a run-up
constexpr int RunOutOrders = 3;

// Four decimals are more than a recording tells.
double rounded(double value) {
    return std::round(value * 1e4) / 1e4 + 0.0;
}

Json vectorJson(std::complex<double> phasor) {
    const double lag = std::remainder(-degrees(std::arg(phasor)), 360.0);
    return {{"amplitude", rounded(std::abs(phasor))},
            {"lag", rounded(lag < 0 ? lag + 360.0 : lag)}};
}

// The vectors of both probes, each made by `phasorOf` from the probe's place.
template <typename PhasorOf>
void addVectors(Json& json, const Example& example, PhasorOf phasorOf) {
    json["x"] = vectorJson(phasorOf(example.probes.x));
    json["y"] = vectorJson(phasorOf(example.probes.y));
}

std::string sideText(double angle) {
    return angle <= 180.0 ? std::to_string(std::lround(angle)) + " R"
                          : std::to_string(std::lround(360.0 - angle)) + " L";
}

Json probeJson(const Example& example, const std::string& column, double angle) {
    if (example.form == FileForm::Csv) return {{"column", column}, {"angle", sideText(angle)}};
    return {{"column", column == "X" ? "1" : "2"},
            {"angle", sideText(angle)},
            {"sensitivity", VoltsPerMicrometre / FullScaleVolts},
            {"rest", GapVolts / FullScaleVolts}};
}

Json keyphasorJson(const Example& example) {
    const double angle = example.probes.keyphasor;
    if (example.keyphasor == KeyphasorSignal::Ramp) {
        return {{"column", "Angle"}, {"kind", "ramp"}, {"angle", angle}};
    }
    const bool notch = example.keyphasor == KeyphasorSignal::NotchVolts;
    return {{"column", example.form == FileForm::Csv ? "Keyphasor" : "3"},
            {"kind", "volts"},
            {"edge", notch ? "falling" : "rising"},
            {"pulsesPerTurn", 1},
            {"angle", angle}};
}

const char* senseText(Sense sense) {
    return sense == Sense::CounterClockwise ? "CCW" : "CW";
}

Json componentsJson(const Example& example) {
    Json components = Json::array();
    for (const Whirl& whirl : example.whirls) {
        Json component = {
            {"order", whirl.order}, {"forward", whirl.forward}, {"backward", whirl.backward}};
        addVectors(component, example,
                   [&](double probe) { return phasorAt(whirl, probe, example.sense); });
        components.push_back(component);
    }
    return components;
}

Json runOutJson(const Example& example) {
    Json orders = Json::array();
    for (int order = 1; order <= RunOutOrders; ++order) {
        Json json = {{"order", order}};
        addVectors(json, example, [&](double probe) {
            return phasorAt(example.runOut, order, degreesBehindMark(example, probe));
        });
        orders.push_back(json);
    }
    return orders;
}

Json responseJson(const Example& example) {
    Json speeds = Json::array();
    for (double rpm = example.startRpm; rpm <= example.endRpm; rpm += SpeedStep) {
        const Position place = restingPlace(*example.rotor, rpm, example.sense);
        Json json = {{"rpm", rpm}, {"right", rounded(place.u)}, {"up", rounded(place.v)}};
        addVectors(json, example, [&](double probe) {
            return phasorAt(*example.rotor, rpm, probe, example.sense);
        });
        speeds.push_back(json);
    }
    return speeds;
}

bool hasRunOut(const RunOut& runOut) {
    return runOut.bow + runOut.oval + runOut.scratch > 0.0;
}

}  // namespace

std::string machineText(const Example& example) {
    const Json json = {
        {"machine", "Rotor kit"},
        {"point", "Bearing 1"},
        {"unit", "um"},
        {"rotation", senseText(example.sense)},
        {"x", probeJson(example, "X", example.probes.x)},
        {"y", probeJson(example, "Y", example.probes.y)},
        {"keyphasor", keyphasorJson(example)},
        {"clearance", {{"width", example.clearanceWidth}, {"height", example.clearanceHeight}}}};
    return json.dump(2) + '\n';
}

std::string truthText(const Example& example) {
    Json json = {{"title", example.title},
                 {"sampleRate", example.rate},
                 {"sampleCount", sampleCountOf(example)},
                 {"startRpm", example.startRpm},
                 {"endRpm", example.endRpm},
                 {"rotation", senseText(example.sense)},
                 {"noise", example.noise}};
    if (!example.whirls.empty()) json["components"] = componentsJson(example);
    if (hasRunOut(example.runOut)) json["runOut"] = runOutJson(example);
    if (example.rotor) json["response"] = responseJson(example);
    return json.dump(2) + '\n';
}

}  // namespace Rotavue::Examples
