#include "examples/example_csv.h"

#include <array>
#include <charconv>

namespace Rotavue::Examples {
namespace {

constexpr int TimeDecimals = 6;
constexpr int ValueDecimals = 3;

// Always a decimal point, whatever the locale.
void append(std::string& text, double value, int decimals) {
    std::array<char, 64> buffer;
    const auto end =
        std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::fixed, decimals);
    text.append(buffer.begin(), end.ptr);
}

}  // namespace

std::string csvText(const Example& example, const Samples& samples) {
    const bool ramp = example.keyphasor == KeyphasorSignal::Ramp;
    std::string text = "Time [s],X [um],Y [um],";
    text += ramp ? "Angle [deg]\n" : "Keyphasor [V]\n";
    for (std::size_t i = 0; i < samples.x.size(); ++i) {
        append(text, static_cast<double>(i) / example.rate, TimeDecimals);
        for (const double value : {samples.x[i], samples.y[i], samples.keyphasor[i]}) {
            text += ',';
            append(text, value, ValueDecimals);
        }
        text += '\n';
    }
    return text;
}

}  // namespace Rotavue::Examples
