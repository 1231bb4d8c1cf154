#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "workbench/recording/option_words.h"
#include "workbench/recording/recording_options.h"

/// The items of a machine file, each with its range, in one table. Reading a machine file, laying
/// options over it and checking options that come from elsewhere all walk this table.
namespace Rotavue::Workbench {

/// The field of a `RecordingOptions` that an item fills.
template <typename Value>
using FieldOf = std::optional<Value>& (*)(RecordingOptions&);

struct NumberItem {
    FieldOf<double> field;
    double least;
    double most;
    double leastMagnitude = 0.0;  ///< nearer to 0 than this it may not be
};

struct CountItem {
    FieldOf<int> field;
    int least;
    int most;
};

/// An angle in degrees, as a number or as a text that `parseProbeAngle` takes.
struct AngleItem {
    FieldOf<double> field;
};

struct TextItem {
    FieldOf<std::string> field;
};

template <typename Value>
struct WordItem {
    FieldOf<Value> field;
    std::span<const Word<Value>> words;
};

using ItemKind = std::variant<NumberItem, CountItem, AngleItem, TextItem, WordItem<Rotation>,
                              WordItem<KeyphasorKind>, WordItem<PulseEdge>, WordItem<Coupling>>;

struct OptionItem {
    std::string_view pointer;  ///< place in a machine file, as a JSON pointer
    ItemKind kind;
};

std::span<const OptionItem> optionItems();

bool isAllowed(const NumberItem& item, double value);
bool isAllowed(const CountItem& item, long long value);
bool isAllowed(const AngleItem& item, double value);

/// What an item may hold, as the end of a message: "a number from 0 to 1e+09".
std::string allowedText(const ItemKind& kind);

/// The shortest decimal text of a number, as messages show it.
std::string numberText(double value);

}  // namespace Rotavue::Workbench
