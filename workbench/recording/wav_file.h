#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <vector>

#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// Whether the file begins as a WAV file of any size does (RIFF, RIFX, RF64 or W64). Throws
/// RecordingError if it cannot be read.
bool isWavFile(const std::filesystem::path& file);

/// A WAV file. Its channels are numbered from "1". Whole-number samples run from -1 to 1 of full
/// scale, floating-point ones are as they stand.
///
/// `read` throws RecordingError at a value that is no number in a channel which is no vibration
/// channel, and if the file holds no samples.
class WavFile : public SampleSource {
public:
    /// Throws RecordingError if the file is damaged, is compressed, or holds more than 1024
    /// channels.
    explicit WavFile(const std::filesystem::path& file);
    ~WavFile() override;

    using SampleSource::read;
    const SourceHead& head() const override { return head_; }
    std::vector<Samples> read(std::span<const WantedColumn> wanted,
                              const ReadingProgress& progress) override;

    /// The first frames, at most so many, each with a value for each channel.
    std::vector<std::vector<double>> firstFrames(std::size_t most);

private:
    class Handle;

    template <typename Value>
    std::vector<Samples> readAs(std::span<const WantedColumn> wanted,
                                const ReadingProgress& progress);
    void checkCount(std::size_t frames) const;

    std::filesystem::path file_;
    std::unique_ptr<Handle> handle_;
    SourceHead head_;
};

}  // namespace Rotavue::Workbench
