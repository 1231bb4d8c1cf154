#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Rotavue::Cli {

/// A file that cannot be written. `what()` is one line that names it.
class OutputError : public std::runtime_error {
public:
    OutputError(const std::filesystem::path& file, std::string_view why);
};

/// A file that a command makes, or standard output for the path "-".
///
/// A regular file is written beside its place under another name and renamed: who looks at the
/// place finds the old content, the new one or nothing, never a part. An interrupt (SIGINT, SIGTERM
/// or SIGHUP) takes the part away. A device or pipe is written to as it stands.
class OutputFile {
public:
    /// Looks whether the file can be made: raises `OutputError` for a folder, for a place in no
    /// folder, and for a file that is there, unless `replace`.
    OutputFile(std::filesystem::path file, bool replace);

    bool isStandardOutput() const { return file_ == "-"; }

    /// Raises `OutputError`, with the place as it was; also where a file has turned up meanwhile.
    void write(std::string_view bytes) const;

private:
    std::filesystem::path file_;
    bool replace_;
    bool special_ = false;  ///< there and no regular file
};

}  // namespace Rotavue::Cli
