#pragma once

#include "tests/fuzz/byte_source.h"

#include <cstdint>
#include <string>

/// Values that a host may hand in, most of them such as no sound host has.
namespace Rotavue::Fuzz {

/// A usual number, a limit of its range, or any at all.
std::int32_t integer(ByteSource& bytes);

/// The same with NaN, infinities and denormal numbers.
double number(ByteSource& bytes);

/// A word that the plug-in knows, a number, nothing, a very long text, or any at all.
std::wstring text(ByteSource& bytes);

/// A key of a setup, the name of a property or of a widget.
std::wstring settingKey(ByteSource& bytes);
std::wstring propertyName(ByteSource& bytes);
std::wstring widgetName(ByteSource& bytes);

}  // namespace Rotavue::Fuzz
