#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Rotavue::Workbench {

/// A place in a file that a person can go to. Line and column count from 1, the column in
/// characters as an editor counts them; 0 where the fault has no line or no column of its own.
struct FilePlace {
    std::filesystem::path file;
    std::size_t line = 0;
    std::size_t column = 0;
};

/// A recording, a machine file or an option that cannot be used.
///
/// what() is always one line, whatever the file holds: place, what was found, what is allowed, as
/// in
///     unbalance.csv:12:9: found "abc" in column "x", allowed: a number, or nothing for a gap
/// Characters that would break or blur the line are shown as "?", and long texts are cut.
class RecordingError : public std::runtime_error {
public:
    RecordingError(FilePlace place, std::string_view found, std::string_view allowed);

    const FilePlace& place() const noexcept { return place_; }

private:
    FilePlace place_;
};

/// The text in double quotes, made fit for one line of a message: control characters become "?",
/// and what goes beyond 40 characters becomes "...".
std::string inQuotes(std::string_view text);

}  // namespace Rotavue::Workbench
