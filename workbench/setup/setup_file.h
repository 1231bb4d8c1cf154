#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// One setting as a text, the form in which a control writes and reads it.
struct SetupEntry {
    std::string key;
    std::string text;
    std::size_t line = 0;  ///< in its file; 0 where it comes from elsewhere
};

/// A setup: what a control keeps from one start to the next. The order is that of the file.
using SetupEntries = std::vector<SetupEntry>;

/// The setup as an XML file, an element named after each key:
///
///     <?xml version="1.0" encoding="UTF-8"?>
///     <setup>
///         <revolutions>8</revolutions>
///     </setup>
std::string setupXml(const SetupEntries& entries);

/// The entries of such a file. Comments, and blanks around a text, do not count. Raises
/// `RecordingError` for a file that cannot be read, that is no XML or that is built otherwise; what
/// keys and texts mean is not looked at.
SetupEntries readSetupFile(const std::filesystem::path& file);

}  // namespace Rotavue::Workbench
