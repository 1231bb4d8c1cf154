#include "cli/analyze_command.h"

#include "cli/argument_values.h"
#include "cli/curve_list.h"
#include "cli/output_file.h"
#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/reference_orbit.h"
#include "workbench/scene/bearing_facts.h"

#include <stdexcept>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr const char* Help =
    "Tell speed, orders and gap of a recording\n\n"
    "Examples:\n"
    "  rotavue analyze unbalance.csv\n"
    "  rotavue analyze run-up.csv --window 1\n"
    "  rotavue analyze oil-whirl.csv --orders 0.46+1 --amplitude pp --json\n"
    "  rotavue analyze pump.csv --compensate vector --slow-roll slow-roll.csv\n"
    "  rotavue analyze pump.csv --rest bottom --rest-span 0-0.5 --clearance-width 200\n"
    "  rotavue analyze slow-roll.csv --save-reference slow-roll.json\n\n"
    "A phase is a lag: degrees of the order's own cycle from the keyphasor's pulse to the next\n"
    "positive peak, which is where the shaft is nearest to the probe. A tilt is that of an "
    "ellipse's long\n"
    "axis, degrees clockwise from the top. The attitude angle counts from straight down, in the\n"
    "direction of rotation.\n";

constexpr const char* Group = "The analysis";
constexpr double LeastWindow = 1e-3;
constexpr double LargestWindow = 1e9;

AmplitudeScale amplitudeIn(const std::string& text) {
    if (text == "peak") return AmplitudeScale::Peak;
    if (text == "rms") return AmplitudeScale::Rms;
    if (text == "pp") return AmplitudeScale::PeakPeak;
    throw UsageError("--amplitude", text, "peak, rms or pp");
}

}  // namespace

CLI::App* AnalyzeCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("analyze", Help);
    command->add_option("RECORDING", file_, "a CSV or WAV file")->required()->type_name("");
    command->add_flag("--json", json_, "one JSON object");
    declareAnalysis(*command);
    compensation_.declare(*command);
    arguments_.declare(*command);
    return command;
}

void AnalyzeCommand::declareAnalysis(CLI::App& command) {
    const auto add = [&](const char* name, auto& value, const char* type, const char* help) {
        command.add_option(name, value, help)->type_name(type)->group(Group);
    };
    add("--orders", orders_, "ORDERS", "multiples of the shaft's speed, such as 1+2+0.43 (1+2)");
    add("--span", span_, "FROM-TO", "seconds after the first sample (all of the recording)");
    add("--window", window_, "SECONDS", "one result for each such stretch (one for all)");
    add("--amplitude", amplitude_, "peak|rms|pp", "of the orders (peak, half the movement)");
    rest_.declare(command, Group, "the shaft's position, e/c and attitude: ");
    add("--save-reference", reference_, "FILE",
        "keep the averaged orbit, which render shows as reference:FILE; named .json");
    command.add_flag("--force", force_, "replace a reference that is there")->group(Group);
}

AnalysisOrder AnalyzeCommand::analysisOrder() const {
    AnalysisOrder order;
    if (orders_) order.orders = ordersIn("--orders", *orders_);
    if (span_) order.span = secondsIn("--span", *span_);
    if (window_) order.window = number("--window", *window_, LeastWindow, LargestWindow, "s");
    order.rest = rest_.place();
    order.restSpan = rest_.span();
    if (amplitude_) order.amplitude = amplitudeIn(*amplitude_);
    if (reference_ && !reference_->ends_with(".json")) {
        throw UsageError("--save-reference", *reference_, "a name that ends with .json");
    }
    return order;
}

void AnalyzeCommand::saveReference(const Recording& recording, const AnalysisOrder& order) const {
    const OutputFile place(*reference_, force_);  // refuses what is there
    try {
        const ReferenceOrbit reference =
            averagedReference(recording, ShaftTrack(recording), order.span);
        Workbench::saveReference(reference, *reference_);
    } catch (const AnalysisError& error) {
        throw std::runtime_error(file_ + ": " + error.what());
    }
}

int AnalyzeCommand::run() {
    const AnalysisOrder order = analysisOrder();
    const auto compensation = compensation_.choice();
    const RecordingOptions options = arguments_.options();
    RunOutRemover runOut(compensation, options);
    Recording recording = runOut.remove(readRecording(file_, options));
    completeClearance(recording.machine);
    AnalysisReport report = analyze(recording, order);
    if (compensation) report.compensation = toText(compensation->form);
    report.notes.insert(report.notes.begin(), runOut.notes().begin(), runOut.notes().end());
    if (reference_) saveReference(recording, order);
    const OutputFile output("-", false);
    output.write(json_ ? analysisAsJson(report) : analysisAsText(report));
    return 0;
}

}  // namespace Rotavue::Cli
