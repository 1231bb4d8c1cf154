#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace Rotavue::Workbench {

/// The text of a file from a place on, in chunks of whole lines that can be looked at independently
/// of one another.
class ChunkReader {
public:
    /// What is usually read at once, in bytes; a chunk is about as long.
    static constexpr std::size_t ReadSize = 1U << 20U;

    /// Throws RecordingError if the file cannot be read.
    ChunkReader(const std::filesystem::path& file, std::uint64_t offset,
                std::size_t readSize = ReadSize);

    /// Puts the next chunk in the place of `text`; false at the end of the file. It ends with a
    /// line feed, but for the last one of the file and for one that is a single line longer than
    /// what is read at once, or a piece of such. Throws RecordingError if the file cannot be read
    /// on.
    bool next(std::string& text);

    /// The bytes of the file that lie before what comes next, and all of them.
    std::uint64_t position() const { return position_; }
    std::uint64_t size() const { return size_; }

private:
    void read(std::string& text);

    std::filesystem::path file_;
    std::ifstream stream_;
    std::size_t readSize_;
    std::uint64_t position_;
    std::uint64_t size_;
    std::string rest_;  // of a line that the next chunk begins with
};

}  // namespace Rotavue::Workbench
