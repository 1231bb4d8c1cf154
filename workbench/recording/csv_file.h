#pragma once

#include <cstddef>
#include <filesystem>

#include "workbench/recording/chunk_reader.h"
#include "workbench/recording/sample_source.h"
#include "workbench/recording/table_layout.h"

namespace Rotavue::Workbench {

/// A text file of rows of numbers. Blank lines between rows are passed over; a column that is not
/// wanted may hold anything.
///
/// `read` throws RecordingError, with line and column, at a row with another number of fields than
/// the first, at a text or a number that no double holds in a wanted column, at a gap in one that
/// is no vibration column, and where the time runs backward. Several threads read the rows; what
/// comes out does not depend on how many.
class CsvFile : public SampleSource {
public:
    /// Finds the layout (table_layout.h) and throws as that does. `threads` is the number of
    /// threads that read; 0: as many as the machine runs at once. Each takes `chunkSize` bytes
    /// at once, which is more than a line has.
    explicit CsvFile(const std::filesystem::path& file, unsigned threads = 0,
                     std::size_t chunkSize = ChunkReader::ReadSize);

    using SampleSource::read;
    const SourceHead& head() const override { return layout_.head; }
    std::vector<Samples> read(std::span<const WantedColumn> wanted,
                              const ReadingProgress& progress) override;

private:
    std::filesystem::path file_;
    TableLayout layout_;
    unsigned threads_;
    std::size_t chunkSize_;
};

}  // namespace Rotavue::Workbench
