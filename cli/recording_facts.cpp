#include "cli/recording_facts.h"

#include "cli/signal_span.h"
#include "workbench/scene/fact_words.h"

#include <algorithm>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

/// Lines of a name and what is said of it, the latter in one column.
class Lines {
public:
    void add(const std::string& name, const std::string& text) {
        constexpr std::size_t Column = 13;
        if (text.empty()) return;
        text_ += name + std::string(Column - std::min(Column - 1, name.size()), ' ') + text + '\n';
    }

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

std::string joined(const std::string& first, const std::string& second) {
    if (first.empty() || second.empty()) return first + second;
    return first + ", " + second;
}

std::string withUnit(const std::string& text, const std::string& unit) {
    return unit.empty() ? text : text + ' ' + unit;
}

std::string columnsText(const Recording& recording) {
    std::string text;
    for (const RecordingColumn& column : recording.columns) {
        if (!text.empty()) text += ", ";
        text += column.name;
        if (!column.unit.empty()) text += " [" + column.unit + ']';
        text += std::string(" (") + roleText(column.role) + ')';
    }
    return text;
}

std::string probeText(const Samples& values, double angle, const std::string& unit) {
    const SignalSpan span = SignalSpan::of(values);
    std::string text = "at " + placeText(angle) + ", " +
                       withUnit(shortNumber(span.most - span.least), unit) + " pp, mean " +
                       withUnit(shortNumber(span.mean), unit);
    if (span.gaps > 0) text += ", " + std::to_string(span.gaps) + " samples missing";
    return text;
}

std::string keyphasorText(const Recording& recording) {
    if (!recording.hasTacho()) return "none";
    return std::string(toText(recording.keyphasorKind)) + " at " +
           placeText(recording.machine.tachoAngle) + ", " + shortNumber(turnsIn(recording)) +
           " turns, mean speed " + shortNumber(recording.meanSpeed) + " rpm";
}

std::string clearanceText(const MachineFacts& machine) {
    if (machine.clearanceWidth <= 0.0 && machine.clearanceHeight <= 0.0) return "not given";
    return withUnit(
        shortNumber(machine.clearanceWidth) + " x " + shortNumber(machine.clearanceHeight),
        machine.unit);
}

std::string rotationText(const MachineFacts& machine) {
    return machine.rotation ? std::string(toText(*machine.rotation)) : "not given";
}

}  // namespace

std::string factsAsText(const Recording& recording) {
    const MachineFacts& machine = recording.machine;
    Lines lines;
    lines.add("file", recording.file.string());
    lines.add("machine", joined(machine.machine, machine.point));
    lines.add("columns", columnsText(recording));
    lines.add("samples", std::to_string(recording.sampleCount()) + " in " +
                             shortNumber(recording.duration()) + " s");
    lines.add("rate", shortNumber(recording.sampleRate, 7) + " Hz, from the " +
                          sourceText(recording.rateSource));
    lines.add("X probe", probeText(recording.x, machine.xAngle, machine.unit));
    lines.add("Y probe", probeText(recording.y, machine.yAngle, machine.unit));
    lines.add("coupling", std::string(toText(recording.coupling)));
    lines.add("keyphasor", keyphasorText(recording));
    lines.add("rotation", rotationText(machine));
    lines.add("clearance", clearanceText(machine));
    for (const std::string& note : recording.notes)
        lines.add("note", note);
    return lines.text();
}

}  // namespace Rotavue::Cli
