#include "workbench/recording/chunk_reader.h"

#include "workbench/recording/input_file.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {

ChunkReader::ChunkReader(const std::filesystem::path& file, std::uint64_t offset,
                         std::size_t readSize)
    : file_(file), stream_(openInput(file)), readSize_(readSize), position_(offset) {
    stream_.seekg(0, std::ios::end);
    size_ = static_cast<std::uint64_t>(stream_.tellg());
    stream_.seekg(static_cast<std::streamoff>(offset));
}

bool ChunkReader::next(std::string& text) {
    text = std::move(rest_);
    rest_.clear();
    read(text);
    const std::size_t feed = stream_ ? text.rfind('\n') : std::string::npos;
    if (feed != std::string::npos) {
        rest_ = text.substr(feed + 1);
        text.resize(feed + 1);
    }
    position_ += text.size();
    return !text.empty();
}

// Appends what the file holds next.
void ChunkReader::read(std::string& text) {
    const std::size_t begin = text.size();
    text.resize(begin + readSize_);
    stream_.read(text.data() + begin, static_cast<std::streamsize>(readSize_));
    text.resize(begin + static_cast<std::size_t>(stream_.gcount()));
    if (stream_.bad()) throw RecordingError({file_}, "a fault of the disk", "a readable file");
}

}  // namespace Rotavue::Workbench
