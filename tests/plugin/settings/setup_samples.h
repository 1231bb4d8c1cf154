#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>

/// Texts for the keys of a setup, valid, odd and hostile, each with what it is worth. Nothing here
/// reads a text: whoever makes one up knows its worth.
namespace Meridax::VisualControls::Rotavue {

using Random = std::mt19937;

/// A number from `least` to `most`.
std::int32_t anyOf(Random& random, std::int32_t least, std::int32_t most);

struct BoolSample {
    std::wstring text;
    bool value;
    std::optional<bool> withComma{};  ///< where it is another one with that decimal point
};

struct IntegerSample {
    std::wstring text;
    std::int32_t value = 0;
    std::optional<int> code{};  ///< with which reading it fails
};

struct DoubleSample {
    std::wstring text;
    double value = 0.0;
    std::optional<int> code{};  ///< with which reading it fails
};

BoolSample anyBool(Random& random);
IntegerSample anyInteger(Random& random);
DoubleSample anyDouble(Random& random);

}  // namespace Meridax::VisualControls::Rotavue
