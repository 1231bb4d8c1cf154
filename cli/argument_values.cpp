#include "cli/argument_values.h"

#include "cli/usage_error.h"
#include "workbench/recording/option_items.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Rotavue::Cli {

namespace {

template <class Number, class... Form>
std::optional<Number> wholeText(std::string_view text, Form... form) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value, form...);
    if (fault != std::errc{} || stop != end) return std::nullopt;
    return value;
}

std::string rangeText(std::string_view what, const std::string& least, const std::string& most) {
    return std::string(what) + " from " + least + " to " + most;
}

}  // namespace

std::optional<double> numberIn(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto value = wholeText<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<std::int64_t> wholeNumberIn(std::string_view text) {
    return wholeText<std::int64_t>(text);
}

double number(std::string_view option, const std::string& text, double least, double most,
              std::string_view unit) {
    const auto value = numberIn(text);
    if (value && *value >= least && *value <= most) return *value;
    std::string allowed =
        rangeText("a number", Workbench::numberText(least), Workbench::numberText(most));
    if (!unit.empty()) allowed.append(" ").append(unit);
    throw UsageError(option, text, allowed);
}

int wholeNumber(std::string_view option, const std::string& text, int least, int most) {
    const auto value = wholeNumberIn(text);
    if (value && *value >= least && *value <= most) return static_cast<int>(*value);
    throw UsageError(option, text,
                     rangeText("a whole number", std::to_string(least), std::to_string(most)));
}

std::uint32_t color(std::string_view option, const std::string& text) {
    const auto value = wholeText<std::uint32_t>(text, 16);
    if (value && text.size() == 6) return *value;
    throw UsageError(option, text, "six hexadecimal digits RRGGBB, such as 1F77B4");
}

PixelSize pixelSize(std::string_view option, const std::string& text, int largest) {
    const std::size_t cross = text.find('x');
    const std::string_view whole = text;
    if (cross != std::string::npos) {
        const auto width = wholeNumberIn(whole.substr(0, cross));
        const auto height = wholeNumberIn(whole.substr(cross + 1));
        const auto fits = [&](const auto& side) { return side && *side >= 1 && *side <= largest; };
        if (fits(width) && fits(height)) {
            return {static_cast<int>(*width), static_cast<int>(*height)};
        }
    }
    throw UsageError(option, text,
                     "WIDTHxHEIGHT, each from 1 to " + std::to_string(largest) + " pixels");
}

PicturePoint pointIn(std::string_view option, const std::string& text, const PixelSize& size) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const auto x = wholeNumberIn(text.substr(0, comma));
    const auto y = wholeNumberIn(text.substr(std::min(comma + 1, text.size())));
    if (x && y && *x >= 0 && *x < size.width && *y >= 0 && *y < size.height) {
        return {static_cast<int>(*x), static_cast<int>(*y)};
    }
    throw UsageError(option, text,
                     "X,Y in the picture, from 0,0 to " + std::to_string(size.width - 1) + ',' +
                         std::to_string(size.height - 1));
}

Workbench::TimeSpan secondsIn(std::string_view option, const std::string& text) {
    const std::size_t dash = std::min(text.find('-'), text.size());
    const auto from = numberIn(text.substr(0, dash));
    const auto to = numberIn(text.substr(std::min(dash + 1, text.size())));
    if (from && to && *from >= 0.0 && *to > *from) return {*from, *to};
    throw UsageError(option, text, "FROM-TO in seconds after the first sample, such as 0-1.5");
}

}  // namespace Rotavue::Cli
