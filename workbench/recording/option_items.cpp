#include "workbench/recording/option_items.h"

#include <array>
#include <charconv>
#include <cmath>

#include "workbench/recording/degrees.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

using Options = RecordingOptions;
using Probe = ProbeOptions;
using Keyphasor = KeyphasorOptions;

constexpr double LeastRate = 1e-3;
constexpr double LargestRate = 1e9;
constexpr double LargestValue = 1e12;
constexpr double LeastSensitivity = 1e-12;
constexpr int LargestPulseCount = 3600;

// The field that a path of members leads to.
template <auto... Path>
auto& at(Options& options) {
    return (options.*....*Path);
}

constexpr NumberItem valueItem(FieldOf<double> field) {
    return {field, -LargestValue, LargestValue};
}

constexpr NumberItem sensitivityItem(FieldOf<double> field) {
    return {field, -LargestValue, LargestValue, LeastSensitivity};
}

const auto Items = std::to_array<OptionItem>({
    {"/machine", TextItem{at<&Options::machine>}},
    {"/point", TextItem{at<&Options::point>}},
    {"/unit", TextItem{at<&Options::unit>}},
    {"/rate", NumberItem{at<&Options::rate>, LeastRate, LargestRate}},
    {"/time/column", TextItem{at<&Options::timeColumn>}},
    {"/rotation", WordItem<Rotation>{at<&Options::rotation>, RotationWords}},
    {"/coupling", WordItem<Coupling>{at<&Options::coupling>, CouplingWords}},
    {"/x/column", TextItem{at<&Options::x, &Probe::column>}},
    {"/x/angle", AngleItem{at<&Options::x, &Probe::angle>}},
    {"/x/sensitivity", sensitivityItem(at<&Options::x, &Probe::sensitivity>)},
    {"/x/rest", valueItem(at<&Options::x, &Probe::rest>)},
    {"/y/column", TextItem{at<&Options::y, &Probe::column>}},
    {"/y/angle", AngleItem{at<&Options::y, &Probe::angle>}},
    {"/y/sensitivity", sensitivityItem(at<&Options::y, &Probe::sensitivity>)},
    {"/y/rest", valueItem(at<&Options::y, &Probe::rest>)},
    {"/keyphasor/column", TextItem{at<&Options::keyphasor, &Keyphasor::column>}},
    {"/keyphasor/kind",
     WordItem<KeyphasorKind>{at<&Options::keyphasor, &Keyphasor::kind>, KeyphasorKindWords}},
    {"/keyphasor/edge",
     WordItem<PulseEdge>{at<&Options::keyphasor, &Keyphasor::edge>, PulseEdgeWords}},
    {"/keyphasor/level", valueItem(at<&Options::keyphasor, &Keyphasor::level>)},
    {"/keyphasor/hysteresis",
     NumberItem{at<&Options::keyphasor, &Keyphasor::hysteresis>, 0, LargestValue}},
    {"/keyphasor/pulsesPerTurn",
     CountItem{at<&Options::keyphasor, &Keyphasor::pulsesPerTurn>, 1, LargestPulseCount}},
    {"/keyphasor/angle", AngleItem{at<&Options::keyphasor, &Keyphasor::angle>}},
    {"/clearance/width", NumberItem{at<&Options::clearanceWidth>, 0, LargestValue}},
    {"/clearance/height", NumberItem{at<&Options::clearanceHeight>, 0, LargestValue}},
});

std::string rangeText(std::string_view what, const std::string& least, const std::string& most) {
    return std::string(what) + " from " + least + " to " + most;
}

std::string describe(const NumberItem& item) {
    return rangeText("a number", numberText(item.least), numberText(item.most)) +
           (item.leastMagnitude > 0.0 ? ", not 0" : "");
}

std::string describe(const CountItem& item) {
    return rangeText("a whole number", std::to_string(item.least), std::to_string(item.most));
}

std::string describe(const AngleItem&) {
    return rangeText("a number", numberText(-DegreesPerTurn), numberText(DegreesPerTurn)) +
           ", or a text such as \"45 R\" or \"45 L\"";
}

std::string describe(const TextItem&) {
    return "a text of 1 to 200 characters";
}

template <typename Value>
std::string describe(const WordItem<Value>& item) {
    std::string text;
    for (std::size_t i = 0; i < item.words.size(); ++i) {
        if (i > 0) text += i + 1 < item.words.size() ? ", " : " or ";
        text += inQuotes(item.words[i].text);
    }
    return text;
}

}  // namespace

std::span<const OptionItem> optionItems() {
    return Items;
}

bool isAllowed(const NumberItem& item, double value) {
    return value >= item.least && value <= item.most && std::abs(value) >= item.leastMagnitude;
}

bool isAllowed(const CountItem& item, long long value) {
    return value >= item.least && value <= item.most;
}

bool isAllowed(const AngleItem&, double value) {
    return std::abs(value) <= DegreesPerTurn;
}

std::string allowedText(const ItemKind& kind) {
    return std::visit([](const auto& item) { return describe(item); }, kind);
}

std::string numberText(double value) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value).ptr;
    return {buffer.begin(), end};
}

}  // namespace Rotavue::Workbench
