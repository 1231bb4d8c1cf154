#include "workbench/recording/wav_file.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "workbench/recording/input_file.h"
#include "workbench/recording/memory_ahead.h"
#include "workbench/recording/number_field.h"

namespace Rotavue::Workbench {
namespace {

constexpr std::size_t BlockLength = 4096;  // frames
constexpr std::size_t MostChannels = 1024;
constexpr std::string_view Allowed = "a WAV file of whole numbers or floating-point numbers";

constexpr std::array<std::string_view, 4> Beginnings = {"RIFF", "RIFX", "RF64", "riff"};

constexpr auto ContainerFormats =
    std::to_array<int>({SF_FORMAT_WAV, SF_FORMAT_WAVEX, SF_FORMAT_RF64, SF_FORMAT_W64});

// Formats of a fixed size per sample: from a compressed one, a small file could become a large
// recording.
constexpr auto SampleFormats =
    std::to_array<int>({SF_FORMAT_PCM_U8, SF_FORMAT_PCM_16, SF_FORMAT_PCM_24, SF_FORMAT_PCM_32,
                        SF_FORMAT_FLOAT, SF_FORMAT_DOUBLE});

template <typename List>
bool holds(const List& list, int value) {
    return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

std::size_t bytesOf(int format) {
    switch (format & SF_FORMAT_SUBMASK) {
        case SF_FORMAT_PCM_U8:
            return 1;
        case SF_FORMAT_PCM_16:
            return 2;
        case SF_FORMAT_PCM_24:
            return 3;
        case SF_FORMAT_DOUBLE:
            return 8;
        default:
            return 4;
    }
}

bool isReadable(int format) {
    return holds(ContainerFormats, format & SF_FORMAT_TYPEMASK) &&
           holds(SampleFormats, format & SF_FORMAT_SUBMASK);
}

}  // namespace

bool isWavFile(const std::filesystem::path& file) {
    std::array<char, 4> bytes{};
    std::ifstream stream = openInput(file);
    stream.read(bytes.data(), bytes.size());
    const std::string_view beginning(bytes.data(), bytes.size());
    return std::find(Beginnings.begin(), Beginnings.end(), beginning) != Beginnings.end();
}

// The library's open file.
class WavFile::Handle {
public:
    explicit Handle(const std::filesystem::path& file)
        : file_(sf_open(file.c_str(), SFM_READ, &info_)) {
        if (!file_) throw RecordingError({file}, inQuotes(sf_strerror(nullptr)), Allowed);
        if (!isReadable(info_.format)) {
            sf_close(file_);
            throw RecordingError({file}, "samples of another kind", Allowed);
        }
    }
    ~Handle() { sf_close(file_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    std::size_t channelCount() const { return static_cast<std::size_t>(info_.channels); }
    double rate() const { return info_.samplerate; }

    // The frames that the header claims, as far as a file of this size can hold them.
    std::size_t mostFrames(std::uintmax_t fileSize) const {
        const std::uintmax_t held = fileSize / (bytesOf(info_.format) * channelCount());
        return static_cast<std::size_t>(
            std::min(held, static_cast<std::uintmax_t>(std::max<sf_count_t>(0, info_.frames))));
    }

    // Whether single precision holds each sample exactly.
    bool isNarrow() const {
        const int sample = info_.format & SF_FORMAT_SUBMASK;
        return sample != SF_FORMAT_PCM_32 && sample != SF_FORMAT_DOUBLE;
    }

    void rewind() { sf_seek(file_, 0, SEEK_SET); }

    // The number of frames read: `BlockLength`, and less at the end only.
    std::size_t readBlock(std::vector<double>& block) {
        const auto wanted = static_cast<sf_count_t>(BlockLength);
        return static_cast<std::size_t>(
            std::max<sf_count_t>(0, sf_readf_double(file_, block.data(), wanted)));
    }

private:
    SF_INFO info_{};
    SNDFILE* file_;
};

namespace {

template <typename Value>
void append(std::vector<Value>& values, const std::vector<double>& block, std::size_t channel,
            std::size_t channelCount, std::size_t frames) {
    const std::size_t begin = values.size();
    values.resize(begin + frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double value = block[frame * channelCount + channel];
        const bool measured = std::abs(value) <= LargestReading;
        values[begin + frame] =
            measured ? static_cast<Value>(value) : std::numeric_limits<Value>::quiet_NaN();
    }
}

double partOf(std::size_t frames, std::size_t expected) {
    return frames < expected ? static_cast<double>(frames) / static_cast<double>(expected) : 1.0;
}

void refuseGap(const std::filesystem::path& file, const Samples& values,
               const WantedColumn& column) {
    if (column.role == ColumnRole::X || column.role == ColumnRole::Y) return;
    const auto gap =
        std::find_if(values.begin(), values.end(), [](double value) { return std::isnan(value); });
    if (gap == values.end()) return;
    throw RecordingError({file},
                         "a value that is no number at sample " +
                             std::to_string(gap - values.begin() + 1) + " of channel " +
                             std::to_string(column.index + 1),
                         "numbers");
}

}  // namespace

WavFile::WavFile(const std::filesystem::path& file)
    : file_(file), handle_(std::make_unique<Handle>(file)) {
    const std::size_t count = handle_->channelCount();
    if (count > MostChannels) {
        throw RecordingError({file}, std::to_string(count) + " channels",
                             "at most " + std::to_string(MostChannels));
    }
    head_.namesGiven = false;
    head_.rate = handle_->rate();
    for (std::size_t i = 0; i < count; ++i)
        head_.columns.push_back({std::to_string(i + 1), ""});
}

WavFile::~WavFile() = default;

std::vector<Samples> WavFile::read(std::span<const WantedColumn> wanted,
                                   const ReadingProgress& progress) {
    return handle_->isNarrow() ? readAs<float>(wanted, progress) : readAs<double>(wanted, progress);
}

template <typename Value>
std::vector<Samples> WavFile::readAs(std::span<const WantedColumn> wanted,
                                     const ReadingProgress& progress) {
    const std::size_t channelCount = handle_->channelCount();
    const std::size_t expected = handle_->mostFrames(std::filesystem::file_size(file_));
    std::vector<std::vector<Value>> columns(wanted.size());
    for (std::vector<Value>& column : columns)
        column.reserve(std::min(expected, MaxSampleCount));
    const MemoryAhead memory{std::span(columns)};
    std::vector<double> block(BlockLength * channelCount);
    handle_->rewind();
    std::size_t total = 0;
    while (const std::size_t frames = handle_->readBlock(block)) {
        total += frames;
        checkCount(total);
        for (std::size_t i = 0; i < wanted.size(); ++i)
            append(columns[i], block, wanted[i].index, channelCount, frames);
        progress.reach(partOf(total, expected));
    }
    if (total == 0) throw RecordingError({file_}, "no samples", "at least one");
    std::vector<Samples> samples;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        samples.emplace_back(std::move(columns[i]));
        refuseGap(file_, samples.back(), wanted[i]);
    }
    return samples;
}

std::vector<std::vector<double>> WavFile::firstFrames(std::size_t most) {
    const std::size_t channelCount = handle_->channelCount();
    std::vector<double> block(BlockLength * channelCount);
    handle_->rewind();
    const std::size_t count = std::min(most, handle_->readBlock(block));
    std::vector<std::vector<double>> frames(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto begin = block.begin() + static_cast<std::ptrdiff_t>(i * channelCount);
        frames[i].assign(begin, begin + static_cast<std::ptrdiff_t>(channelCount));
    }
    return frames;
}

void WavFile::checkCount(std::size_t frames) const {
    if (frames <= MaxSampleCount) return;
    throw RecordingError({file_}, "more samples", "at most " + std::to_string(MaxSampleCount));
}

}  // namespace Rotavue::Workbench
