#include "cli/recording_arguments.h"

#include "cli/usage_error.h"
#include "workbench/recording/option_text.h"

#include <array>
#include <cctype>
#include <stdexcept>
#include <string_view>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

constexpr const char* Group = "What the recording holds (before what the machine file says)";

struct ItemWords {
    std::string_view pointer;
    const char* value;
    const char* words;
};

constexpr auto Words = std::to_array<ItemWords>({
    {"/machine", "NAME", "name of the machine"},
    {"/point", "NAME", "name of the measuring point"},
    {"/unit", "UNIT", "unit of x, y and clearance, such as um"},
    {"/rate", "HZ", "samples per second, instead of the time column's"},
    {"/time/column", "COLUMN", "column of the time: its name, or #1 for the first"},
    {"/rotation", "CW|CCW", "sense of rotation as seen in the picture"},
    {"/coupling", "DC|AC", "AC takes each probe's mean away"},
    {"/x/column", "COLUMN", "column of the X probe"},
    {"/x/angle", "ANGLE", "place of the X probe: degrees clockwise from the top, or \"45 R\""},
    {"/x/sensitivity", "NUMBER", "what the column grows by for one unit toward the X probe"},
    {"/x/rest", "NUMBER", "the column's value at displacement 0"},
    {"/y/column", "COLUMN", "column of the Y probe"},
    {"/y/angle", "ANGLE", "place of the Y probe: degrees clockwise from the top, or \"45 L\""},
    {"/y/sensitivity", "NUMBER", "what the column grows by for one unit toward the Y probe"},
    {"/y/rest", "NUMBER", "the column's value at displacement 0"},
    {"/keyphasor/column", "COLUMN", "column of the keyphasor"},
    {"/keyphasor/kind", "KIND", "none, volts, ramp (degrees) or speed (rpm)"},
    {"/keyphasor/edge", "EDGE", "rising or falling: which edge of a pulse counts"},
    {"/keyphasor/level", "VOLTS", "where a pulse begins"},
    {"/keyphasor/hysteresis", "VOLTS", "how far the signal must fall back between pulses"},
    {"/keyphasor/pulsesPerTurn", "COUNT", "pulses of one turn"},
    {"/keyphasor/angle", "ANGLE", "place of the keyphasor probe"},
    {"/clearance/width", "NUMBER", "the bearing's diametral clearance across, in the unit"},
    {"/clearance/height", "NUMBER", "the bearing's diametral clearance upright"},
});

const ItemWords& wordsOf(std::string_view pointer) {
    for (const ItemWords& item : Words)
        if (item.pointer == pointer) return item;
    throw std::logic_error("an item of the machine file has no words for its option");
}

void set(RecordingOptions& options, const OptionItem& item, const std::string& text) {
    if (setItem(options, item, text)) return;
    throw UsageError(optionNameOf(item.pointer), text, allowedText(item.kind));
}

}  // namespace

std::string optionNameOf(std::string_view pointer) {
    std::string name = "-";
    for (const char character : pointer) {
        if (character == '/') {
            name += '-';
        } else if (std::isupper(static_cast<unsigned char>(character)) != 0) {
            name += '-';
            name += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        } else {
            name += character;
        }
    }
    return name;
}

void RecordingArguments::declare(CLI::App& command) {
    command
        .add_option("--machine-file", machineFile_, "the machine file, if not NAME.machine.json")
        ->group(Group)
        ->type_name("FILE");
    items_.resize(optionItems().size());
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const ItemWords& item = wordsOf(optionItems()[i].pointer);
        command.add_option(optionNameOf(item.pointer), items_[i], item.words)
            ->group(Group)
            ->type_name(item.value);
    }
}

RecordingOptions RecordingArguments::options() const {
    RecordingOptions options;
    if (machineFile_) options.machineFile = *machineFile_;
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (items_[i]) set(options, optionItems()[i], *items_[i]);
    return options;
}

}  // namespace Rotavue::Cli
