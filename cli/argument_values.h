#pragma once

#include "workbench/analysis/time_span.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The values of options, read from their texts. Numbers have a decimal point whatever the locale,
/// and nothing may stand behind them.
namespace Rotavue::Cli {

/// The number that the whole text is; nothing for another text, for infinity and for no number.
std::optional<double> numberIn(std::string_view text);

/// The whole number that the whole text is.
std::optional<std::int64_t> wholeNumberIn(std::string_view text);

/// A number within bounds. Raises `UsageError` naming the option; `unit` ends "a number from 1 to
/// 9".
double number(std::string_view option, const std::string& text, double least, double most,
              std::string_view unit = {});

int wholeNumber(std::string_view option, const std::string& text, int least, int most);

/// RRGGBB, six hexadecimal digits.
std::uint32_t color(std::string_view option, const std::string& text);

struct PixelSize {
    int width = 0;
    int height = 0;
};

/// WIDTHxHEIGHT in pixels.
PixelSize pixelSize(std::string_view option, const std::string& text, int largest);

/// A pixel by its distance from the upper left corner.
struct PicturePoint {
    int x = 0;
    int y = 0;
};

/// X,Y of a pixel in a picture of that size.
PicturePoint pointIn(std::string_view option, const std::string& text, const PixelSize& size);

/// FROM-TO in seconds, both from 0 and the second one larger.
Workbench::TimeSpan secondsIn(std::string_view option, const std::string& text);

}  // namespace Rotavue::Cli
