#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>

namespace Rotavue::Workbench {

/// Opens a file for reading bytes. Throws RecordingError that names the reason if there is no such
/// file, if it may not be read, or if it is anything but an ordinary file (a pipe is never opened,
/// so nothing waits for one).
std::ifstream openInput(const std::filesystem::path& file);

/// The whole of a small file. Throws RecordingError as `openInput` does, and if the file is larger
/// than `most` bytes.
std::string readSmallFile(const std::filesystem::path& file, std::size_t most);

}  // namespace Rotavue::Workbench
