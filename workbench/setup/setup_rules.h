#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/setup/setup_file.h"

/// What may stand in a setup that a person writes. A control takes more than that: it reads "12abc"
/// as 12, any word as false, and numbers that its own panel does not offer.
namespace Rotavue::Workbench {

/// The keys in the order in which a control writes them.
std::vector<std::string> settingKeys();

bool isSettingKey(std::string_view key);

/// Whether the text is one for this setting, from the range that the panel offers. False for a key
/// that is none.
bool isSettingText(std::string_view key, std::string_view text);

/// "a whole number from 1 to 25", "True or False", "0 (Grid) or 1 (Circle)".
std::string allowedTexts(std::string_view key);

/// What is wrong with a key, as a message says it after "found": that there is none, and the
/// nearest.
std::string unknownKey(std::string_view key);

/// Raises `RecordingError` for the first entry that is none, has a text that is not allowed or
/// comes a second time.
void checkSetup(const std::filesystem::path& file, const SetupEntries& entries);

/// The entries of a setup file, checked.
SetupEntries readCheckedSetup(const std::filesystem::path& file);

}  // namespace Rotavue::Workbench
