#include "cli/compensation_arguments.h"

#include "cli/argument_values.h"
#include "cli/usage_error.h"

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr const char* Group = "Run-out";

CompensationForm formIn(const std::string& text) {
    if (text == "vector") return CompensationForm::Vector;
    if (text == "waveform") return CompensationForm::Waveform;
    throw UsageError("--compensate", text, "vector or waveform");
}

}  // namespace

void CompensationArguments::declare(CLI::App& command) {
    CLI::Option* form = command.add_option(
        "--compensate", form_,
        "take the run-out away: its 1X and 2X, or all of it by the shaft's angle");
    CLI::Option* file =
        command.add_option("--slow-roll", slowRoll_,
                           "a recording of the same bearing in slow roll (RECORDING itself)");
    CLI::Option* span = command.add_option("--slow-roll-span", span_,
                                           "seconds of slow roll in it (all, of a --slow-roll)");
    form->type_name("vector|waveform")->group(Group);
    file->type_name("FILE")->group(Group)->needs(form);
    span->type_name("FROM-TO")->group(Group)->needs(form);
}

std::optional<CompensationChoice> CompensationArguments::choice() const {
    if (!form_) return std::nullopt;
    CompensationChoice choice{.form = formIn(*form_), .slowRoll = slowRoll_, .span = {}};
    if (span_) choice.span = secondsIn("--slow-roll-span", *span_);
    if (!slowRoll_ && !span_) {
        throw UsageError(
            "--compensate needs --slow-roll with a recording of slow roll, or --slow-roll-span "
            "with the seconds of it");
    }
    return choice;
}

}  // namespace Rotavue::Cli
