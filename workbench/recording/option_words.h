#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "workbench/recording/recording_options.h"

/// The words of machine files and options: each list has its one home here.
namespace Rotavue::Workbench {

template <typename Value>
struct Word {
    std::string_view text;
    Value value;
};

inline constexpr auto RotationWords = std::to_array<Word<Rotation>>({
    {"CW", Rotation::Clockwise},
    {"CCW", Rotation::CounterClockwise},
});
inline constexpr auto KeyphasorKindWords = std::to_array<Word<KeyphasorKind>>({
    {"none", KeyphasorKind::None},
    {"volts", KeyphasorKind::Volts},
    {"ramp", KeyphasorKind::Ramp},
    {"speed", KeyphasorKind::Speed},
});
inline constexpr auto PulseEdgeWords = std::to_array<Word<PulseEdge>>({
    {"rising", PulseEdge::Rising},
    {"falling", PulseEdge::Falling},
});
inline constexpr auto CouplingWords = std::to_array<Word<Coupling>>({
    {"DC", Coupling::Dc},
    {"AC", Coupling::Ac},
});

/// The value that a word stands for, compared exactly.
template <typename Value>
std::optional<Value> valueOf(std::span<const Word<Value>> words, std::string_view text) {
    for (const Word<Value>& word : words) {
        if (word.text == text) return word.value;
    }
    return std::nullopt;
}

/// The word for a value of the list.
template <typename Value>
std::string_view wordFor(std::span<const Word<Value>> words, Value value) {
    for (const Word<Value>& word : words) {
        if (word.value == value) return word.text;
    }
    return {};
}

}  // namespace Rotavue::Workbench
