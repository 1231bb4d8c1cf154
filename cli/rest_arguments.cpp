#include "cli/rest_arguments.h"

#include "cli/argument_values.h"
#include "cli/usage_error.h"

namespace Rotavue::Cli {

using Workbench::RestPosition;

void RestArguments::declare(CLI::App& command, const char* group, const std::string& purpose) {
    const auto add = [&](const char* name, auto& value, const char* type, const char* help) {
        command.add_option(name, value, purpose + help)->type_name(type)->group(group);
    };
    add("--rest", place_, "center|bottom", "where displacement 0 lies in the clearance (center)");
    add("--rest-span", span_, "FROM-TO",
        "seconds in which the shaft rests; their mean becomes displacement 0");
}

std::optional<RestPosition> RestArguments::place() const {
    if (!place_) return {};
    if (*place_ == "center") return RestPosition::Centre;
    if (*place_ == "bottom") return RestPosition::BottomOfClearance;
    throw UsageError("--rest", *place_, "center or bottom");
}

std::optional<Workbench::TimeSpan> RestArguments::span() const {
    if (!span_) return {};
    return secondsIn("--rest-span", *span_);
}

}  // namespace Rotavue::Cli
