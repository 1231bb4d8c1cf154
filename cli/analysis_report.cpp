#include "cli/analysis_report.h"

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/shaft_position.h"
#include "workbench/analysis/shaft_track.h"
#include "workbench/analysis/signal_check.h"
#include "workbench/scene/fact_words.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr double MostWindows = 100'000.0;

/// The last window is left out below this part of the others.
constexpr double LeastLastWindow = 0.5;

[[noreturn]] void refuse(const Recording& recording, const std::string& why) {
    throw std::runtime_error(recording.file.string() + ": " + why);
}

/// The span as far as the recording reaches.
TimeSpan spanIn(const Recording& recording, const TimeSpan& span) {
    const TimeSpan found{span.from, std::min(span.to, recording.duration())};
    if (found.from < found.to) return found;
    refuse(recording, "nothing lies behind " + shortNumber(span.from, 9) + " s, it is " +
                          shortNumber(recording.duration(), 9) + " s long");
}

std::vector<TimeSpan> windowsOf(const Recording& recording, const AnalysisOrder& order) {
    const TimeSpan all = spanIn(recording, order.span);
    if (!order.window) return {all};
    const double count = all.length() / *order.window;
    if (count > MostWindows) {
        refuse(recording, "--window " + shortNumber(*order.window, 9) + " makes more than " +
                              shortNumber(MostWindows) + " windows");
    }
    std::vector<TimeSpan> windows;
    const auto whole = std::max(1.0, std::floor(count + 1.0 - LeastLastWindow));
    for (double k = 0.0; k < whole; ++k) {
        const double from = all.from + k * *order.window;
        windows.push_back({from, std::min(all.to, from + *order.window)});
    }
    return windows;
}

/// What makes displacements count from the middle of the clearance, where that is asked for.
std::optional<ProbeValues> toCentre(const Recording& recording, const AnalysisOrder& order) {
    if (!order.tellsRest()) return {};
    if (recording.machine.clearanceWidth <= 0.0)
        refuse(recording, "no clearance is known: --clearance-width tells it");
    return shiftToCentre(recording, order.rest.value_or(RestPosition::Centre), order.restSpan);
}

/// The text without its numbers, by which notes of several windows are alike.
std::string wordsOnly(const std::string& text) {
    std::string words;
    std::copy_if(text.begin(), text.end(), std::back_inserter(words),
                 [](char byte) { return (byte < '0' || byte > '9') && byte != '.'; });
    return words;
}

/// What the windows say; of what is alike in several of them, the first.
void addNotes(AnalysisReport& report) {
    std::vector<std::string> texts;
    std::map<std::string, std::size_t> counts;
    for (const OrbitSummary& window : report.windows)
        for (const std::string& text : window.notes)
            if (counts[wordsOnly(text)]++ == 0) texts.push_back(text);
    for (std::string& text : texts) {
        const std::size_t count = counts[wordsOnly(text)];
        if (count > 1) text += " (likewise in " + std::to_string(count - 1) + " more windows)";
        report.notes.push_back(text);
    }
}

/// The first order over the whole, where it was found: it tells which way the shaft whirls.
void addPrecession(AnalysisReport& report) {
    if (report.windows.size() != 1) return;
    for (const OrderSummary& order : report.windows.front().orders)
        if (order.vectors.order == 1.0)
            for (const std::string& note : checkPrecession(order.vectors, report.machine))
                report.notes.push_back(note);
}

}  // namespace

AnalysisReport analyze(const Recording& recording, const AnalysisOrder& order) {
    const ShaftTrack track(recording);
    AnalysisReport report{.file = recording.file.string(),
                          .machine = recording.machine,
                          .order = order,
                          .windows = {},
                          .notes = recording.notes};
    for (const std::string& note : checkProbes(recording))
        report.notes.push_back(note);
    for (const std::string& note : track.notes())
        report.notes.push_back(note);
    try {
        const auto shift = toCentre(recording, order);
        for (const TimeSpan& window : windowsOf(recording, order))
            report.windows.push_back(summarize(recording, track, order.orders, window, shift));
    } catch (const AnalysisError& error) {
        refuse(recording, error.what());
    }
    addNotes(report);
    addPrecession(report);
    return report;
}

std::string amplitudeUnit(const AnalysisReport& report) {
    const std::string& unit = report.machine.unit;
    const std::string start = unit.empty() ? "" : unit + ' ';
    switch (report.order.amplitude) {
        case AmplitudeScale::Rms:
            return start + "rms";
        case AmplitudeScale::PeakPeak:
            return start + "pp";
        case AmplitudeScale::Peak:
            break;
    }
    return start + "peak";
}

}  // namespace Rotavue::Cli
