#include "workbench/recording/line_reader.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "workbench/recording/input_file.h"
#include "workbench/recording/recording_error.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t BinaryCheckLength = 4096;

}  // namespace

LineReader::LineReader(const std::filesystem::path& file)
    : file_(file), stream_(openInput(file)), buffer_(LongestLine + 2) {
    fill();
    if (end_ == 0) throw RecordingError({file_}, "an empty file", "rows of numbers");
    refuseBinary();
    passMark();
}

bool LineReader::next() {
    const char* start = buffer_.data() + begin_;
    const void* feed = std::memchr(start, '\n', end_ - begin_);
    if (!feed) {
        fill();
        start = buffer_.data() + begin_;
        feed = std::memchr(start, '\n', end_ - begin_);
    }
    if (begin_ == end_) return false;
    ++number_;
    const auto length =
        feed ? static_cast<std::size_t>(static_cast<const char*>(feed) - start) : end_ - begin_;
    take(length, begin_ + length + (feed ? 1 : 0));
    return true;
}

// Moves what is left to the front and reads behind it until the buffer is full or the file ends.
void LineReader::fill() {
    std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
              buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
    bufferOffset_ += begin_;
    end_ -= begin_;
    begin_ = 0;
    stream_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
    end_ += static_cast<std::size_t>(stream_.gcount());
    if (stream_.bad()) throw RecordingError({file_}, "a fault of the disk", "a readable file");
}

void LineReader::refuseBinary() const {
    const std::size_t length = std::min(end_, BinaryCheckLength);
    if (!std::memchr(buffer_.data(), '\0', length)) return;
    throw RecordingError({file_}, "binary data", "a WAV file, or text in UTF-8");
}

void LineReader::passMark() {
    if (std::string_view(buffer_.data(), end_).starts_with(ByteOrderMark)) {
        begin_ = ByteOrderMark.size();
    }
}

void LineReader::take(std::size_t length, std::size_t next) {
    if (length > 0 && buffer_[begin_ + length - 1] == '\r') --length;
    if (length > LongestLine) {
        throw RecordingError({file_, number_}, "a longer line",
                             "lines of at most " + std::to_string(LongestLine) + " bytes");
    }
    line_ = {buffer_.data() + begin_, length};
    offset_ = bufferOffset_ + begin_;
    begin_ = next;
}

}  // namespace Rotavue::Workbench
