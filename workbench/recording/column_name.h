#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Rotavue::Workbench {

/// The name of a column or key and the unit that stands in brackets behind it: "Disp X [um]" is
/// "Disp X" in "um"; round brackets count as well. The unit is empty if there is none.
struct NameWithUnit {
    std::string name;
    std::string unit;
};
NameWithUnit splitUnit(std::string_view text);

/// Whether the text is a unit by itself: in brackets, or one that recordings are known to use.
bool isUnitText(std::string_view text);

/// The unit itself, without its brackets.
std::string_view withoutBrackets(std::string_view text);

/// The words of a name in small letters: "Mach1.P1.X" is mach1, p1 and x, "probeX" is probe and x.
std::vector<std::string> wordsOf(std::string_view name);

}  // namespace Rotavue::Workbench
