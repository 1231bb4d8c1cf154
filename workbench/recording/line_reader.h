#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace Rotavue::Workbench {

/// The lines of a text file, one after the other, through one buffer of fixed size. Lines end with
/// a line feed, with or without a carriage return before it; a UTF-8 byte order mark is passed
/// over.
class LineReader {
public:
    /// No line may be longer than this, in bytes.
    static constexpr std::size_t LongestLine = 262'144;

    /// Throws RecordingError if the file cannot be read, is empty, or is no text (a byte 0 near its
    /// beginning, as in UTF-16 and in binary files).
    explicit LineReader(const std::filesystem::path& file);

    /// Moves to the next line; false at the end of the file. Throws RecordingError if the line is
    /// longer than `LongestLine` or the file cannot be read on.
    bool next();

    /// The line moved to, without its end; its characters stay until the next move.
    std::string_view line() const { return line_; }

    /// The number of the line moved to, from 1; 0 before the first move.
    std::size_t number() const { return number_; }

    /// The bytes of the file before the line moved to.
    std::uint64_t offset() const { return offset_; }

private:
    void fill();
    void refuseBinary() const;
    void passMark();
    void take(std::size_t length, std::size_t next);

    std::filesystem::path file_;
    std::ifstream stream_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  ///< of what has not been given out
    std::size_t end_ = 0;    ///< of what has been read
    std::string_view line_;
    std::size_t number_ = 0;
    std::uint64_t bufferOffset_ = 0;  ///< bytes of the file before the buffer
    std::uint64_t offset_ = 0;
};

}  // namespace Rotavue::Workbench
