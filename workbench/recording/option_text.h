#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "workbench/recording/option_items.h"

/// The items of a machine file as a person types them, in options and in fields of a dialog.
namespace Rotavue::Workbench {

/// The longest text of an item, in bytes.
inline constexpr std::size_t LongestItemText = 200;

/// Sets the item from a text; false, with nothing changed, for a text that it does not take.
/// Numbers have a decimal point whatever the locale.
bool setItem(RecordingOptions& options, const OptionItem& item, const std::string& text);

/// Leaves the item unset.
void clearItem(RecordingOptions& options, const OptionItem& item);

/// The text that `setItem` takes for the item's value; nothing where it is unset.
std::optional<std::string> itemText(const RecordingOptions& options, const OptionItem& item);

/// The item at that place of a machine file, such as "/x/angle", which must be one.
const OptionItem& itemAt(std::string_view pointer);

}  // namespace Rotavue::Workbench
