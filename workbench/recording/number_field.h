#pragma once

#include <string_view>

namespace Rotavue::Workbench {

/// No measured value is beyond this, and nothing that is computed from smaller ones overflows.
inline constexpr double LargestReading = 1e30;

enum class FieldKind {
    Number,
    Gap,         ///< empty, or a NaN or infinity
    OutOfRange,  ///< a number beyond `LargestReading`, or so small that no double holds it
    Text
};

struct NumberField {
    FieldKind kind = FieldKind::Text;
    double value = 0.0;  ///< a gap reads as NaN
};

/// Reads one field of a table as a number. The decimal sign is a point or, where the field holds no
/// point, a comma; a leading "+" is taken. Hardly any field is longer than 100 characters: one with
/// a comma that is counts as text.
NumberField readNumber(std::string_view field);

}  // namespace Rotavue::Workbench
