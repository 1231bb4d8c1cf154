#include <charconv>
#include <cmath>

#include "workbench/recording/degrees.h"
#include "workbench/recording/recording_options.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LargestSidedAngle = 180.0;

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

std::optional<double> wholeNumber(std::string_view text) {
    double value = 0.0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool taken = fault == std::errc() && end == text.data() + text.size();
    return taken && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<double> parseProbeAngle(std::string_view text) {
    text = withoutBlanks(text);
    const bool right = text.ends_with('R') || text.ends_with('r');
    const bool left = text.ends_with('L') || text.ends_with('l');
    if (right || left) text = withoutBlanks(text.substr(0, text.size() - 1));
    const std::optional<double> value = wholeNumber(text);
    if (!value) return std::nullopt;
    const bool sided = right || left;
    const double least = sided ? 0.0 : -DegreesPerTurn;
    const double most = sided ? LargestSidedAngle : DegreesPerTurn;
    if (*value < least || *value > most) return std::nullopt;
    return wrappedDegrees(left ? -*value : *value);
}

}  // namespace Rotavue::Workbench
