#include "cli/span_arguments.h"

#include "cli/argument_values.h"

namespace Rotavue::Cli {

namespace {

constexpr int MostRevolutions = 25;
constexpr double MostMilliseconds = 10'000.0;
constexpr double MostSeconds = 1e9;

}  // namespace

void SpanArguments::declare(CLI::App& command, const char* group) {
    CLI::Option* turns =
        command.add_option("--revolutions", revolutions_, "the newest whole turns, 1 to 25 (8)");
    CLI::Option* time = command.add_option(
        "--time", milliseconds_, "the newest milliseconds, 1 to 10000 (100 without a keyphasor)");
    turns->type_name("N")->group(group);
    time->type_name("MS")->group(group)->excludes(turns);
    command.add_option("--at", at_, "where the newest sample is, after the first one (the end)")
        ->type_name("SECONDS")
        ->group(group);
}

void SpanArguments::read(RenderOptions& options) const {
    if (revolutions_) {
        options.revolutions = wholeNumber("--revolutions", *revolutions_, 1, MostRevolutions);
    }
    if (milliseconds_) {
        options.milliseconds = number("--time", *milliseconds_, 1.0, MostMilliseconds, "ms");
    }
    if (at_) options.at = number("--at", *at_, 0.0, MostSeconds, "s");
}

}  // namespace Rotavue::Cli
