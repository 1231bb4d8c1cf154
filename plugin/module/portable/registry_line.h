#pragma once

#include "plugin/module/portable/registry_file.h"

#include <string>
#include <string_view>

/// One line of a registry file as text and back.
namespace Meridax::VisualControls::Rotavue {

/// True for the characters that a file never holds plainly.
constexpr bool isControlCharacter(wchar_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// The line without the blanks and the carriage return about it.
std::wstring_view trimmed(std::wstring_view line);

/// The value that a trimmed line holds. Raises `std::invalid_argument` with what is wrong in it.
RegistryValue readValueLine(std::wstring_view line);

/// The line of a value, without a line end.
std::wstring valueLine(const RegistryValue& value);

}  // namespace Meridax::VisualControls::Rotavue
