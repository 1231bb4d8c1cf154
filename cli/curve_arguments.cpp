#include "cli/curve_arguments.h"

#include "cli/argument_values.h"
#include "cli/curve_list.h"
#include "cli/usage_error.h"

namespace Rotavue::Cli {

namespace {

constexpr const char* Group = "The curves";
constexpr double LeastSpeed = 0.1;
constexpr double LargestSpeed = 1e6;
constexpr double LeastInterval = 1e-6;
constexpr double LargestInterval = 1e9;

constexpr const char* ShowHelp =
    "what is drawn of each recording, joined by commas (raw):\n"
    "raw - the samples\n"
    "by-angle - the same turns by the shaft's angle, with the keyphasor's dots\n"
    "not-1x - what is left of these turns without 1X\n"
    "average - the mean of the shown turns\n"
    "harmonic:1+2+0.43 - ellipses of these orders, from the shown turns\n"
    "subsync - what is below 1X, over the newest 100 ms or --time\n"
    "reference:FILE - the mean of all turns of another recording, or what analyze\n"
    "--save-reference has written (.json)\n"
    "shaft-center - where the shaft lies in its bearing, from the first sample on";

void addOption(CLI::App& command, const char* name, std::optional<std::string>& value,
               const char* type, const char* help) {
    command.add_option(name, value, help)->type_name(type)->group(Group);
}

}  // namespace

void CurveArguments::declare(CLI::App& command) {
    addOption(command, "--show", show_, "CURVES", ShowHelp);
    addOption(command, "--speed", speed_, "RPM",
              "subsync without a keyphasor: where 1X is (the strongest line)");
    addOption(command, "--interval", interval_, "SECONDS",
              "shaft-center: what each position is the mean of (about 30 positions)");
    rest_.declare(command, Group, "shaft-center: ");
    addOption(command, "--labels", labels_, "speed|time",
              "shaft-center: what stands beside the positions (speed, where it is known)");
}

void CurveArguments::read(RenderOptions& options) const {
    if (show_) options.show = curveRequests(*show_);
    if (speed_) options.speed = number("--speed", *speed_, LeastSpeed, LargestSpeed, "rpm");
    readShaftCenter(options.shaftCenter);
}

void CurveArguments::readShaftCenter(Workbench::ShaftCenterChoice& choice) const {
    if (interval_) {
        choice.interval = number("--interval", *interval_, LeastInterval, LargestInterval, "s");
    }
    choice.rest = rest_.place().value_or(choice.rest);
    choice.restSpan = rest_.span();
    if (!labels_) return;
    if (*labels_ != "speed" && *labels_ != "time") {
        throw UsageError("--labels", *labels_, "speed or time");
    }
    choice.labels =
        *labels_ == "time" ? Workbench::PositionLabels::Time : Workbench::PositionLabels::Speed;
}

}  // namespace Rotavue::Cli
