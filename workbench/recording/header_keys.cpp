#include "workbench/recording/header_keys.h"

#include <algorithm>
#include <array>
#include <string>

#include "workbench/recording/column_name.h"
#include "workbench/recording/fields.h"
#include "workbench/recording/number_field.h"

namespace Rotavue::Workbench {
namespace {

constexpr double LeastRate = 1e-3;
constexpr double LargestRate = 1e9;

struct TextKey {
    std::string_view words;
    std::string SourceHead::*field;
};

constexpr auto TextKeys = std::to_array<TextKey>({
    {"machine", &SourceHead::machine},
    {"machinename", &SourceHead::machine},
    {"point", &SourceHead::point},
    {"pointname", &SourceHead::point},
    {"unit", &SourceHead::unit},
    {"yaxisunit", &SourceHead::unit},
});

constexpr auto RateKeys = std::to_array<std::string_view>(
    {"samplerate", "samplingrate", "samplefrequency", "samplingfrequency", "fs"});

std::string joinedWords(std::string_view key) {
    std::string joined;
    for (const std::string& word : wordsOf(key))
        joined += word;
    return joined;
}

// "51.2 kHz" holds its unit itself, "51.2" leaves it to the key.
void takeRate(std::string_view value, std::string_view unitOfKey, SourceHead& head) {
    const std::size_t blank = std::min(value.find(' '), value.size());
    const NumberField number = readNumber(value.substr(0, blank));
    const std::string_view own = withoutBrackets(trimmed(value.substr(blank)));
    const double factor = (own.empty() ? unitOfKey : own) == "kHz" ? 1000.0 : 1.0;
    const double rate = number.value * factor;
    if (number.kind == FieldKind::Number && rate >= LeastRate && rate <= LargestRate) {
        head.rate = rate;
    }
}

}  // namespace

void takeHeaderKey(std::string_view key, std::string_view value, SourceHead& head) {
    const NameWithUnit name = splitUnit(key);
    const std::string words = joinedWords(name.name);
    for (const TextKey& known : TextKeys) {
        if (known.words == words) head.*known.field = value;
    }
    for (const std::string_view known : RateKeys) {
        if (known == words) takeRate(value, name.unit, head);
    }
}

}  // namespace Rotavue::Workbench
