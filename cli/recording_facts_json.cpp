#include "cli/recording_facts.h"

#include "cli/json_values.h"
#include "cli/signal_span.h"
#include "workbench/scene/fact_words.h"

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

Json columnsOf(const Recording& recording) {
    Json columns = Json::array();
    for (const RecordingColumn& column : recording.columns) {
        columns.push_back({{"name", column.name},
                           {"unit", textOrNull(column.unit)},
                           {"role", roleText(column.role)}});
    }
    return columns;
}

Json probeOf(const Samples& values, double angle) {
    const SignalSpan span = SignalSpan::of(values);
    return {{"angle", angle},
            {"least", span.least},
            {"most", span.most},
            {"mean", span.mean},
            {"gaps", span.gaps}};
}

Json keyphasorOf(const Recording& recording) {
    if (!recording.hasTacho()) return {};
    return {{"kind", toText(recording.keyphasorKind)},
            {"angle", recording.machine.tachoAngle},
            {"turns", turnsIn(recording)},
            {"meanSpeed", recording.meanSpeed},
            {"pulses", recording.pulseTimes.size()}};
}

Json clearanceOf(const MachineFacts& machine) {
    if (machine.clearanceWidth <= 0.0 && machine.clearanceHeight <= 0.0) return {};
    return {{"width", machine.clearanceWidth}, {"height", machine.clearanceHeight}};
}

}  // namespace

std::string factsAsJson(const Recording& recording) {
    const MachineFacts& machine = recording.machine;
    const Json facts{
        {"file", recording.file.string()},
        {"machine", textOrNull(machine.machine)},
        {"point", textOrNull(machine.point)},
        {"columns", columnsOf(recording)},
        {"sampleCount", recording.sampleCount()},
        {"sampleRate", recording.sampleRate},
        {"rateSource", sourceText(recording.rateSource)},
        {"startTime", recording.startTime},
        {"duration", recording.duration()},
        {"unit", textOrNull(machine.unit)},
        {"x", probeOf(recording.x, machine.xAngle)},
        {"y", probeOf(recording.y, machine.yAngle)},
        {"coupling", toText(recording.coupling)},
        {"keyphasor", keyphasorOf(recording)},
        {"rotation", machine.rotation ? Json(toText(*machine.rotation)) : Json()},
        {"clearance", clearanceOf(machine)},
        {"notes", recording.notes},
    };
    return facts.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace Rotavue::Cli
