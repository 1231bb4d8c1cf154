#pragma once

#include <filesystem>

#include "workbench/recording/sample_source.h"
#include "workbench/recording/table_layout.h"

namespace Rotavue::Workbench {

/// A text file of rows of numbers. Blank lines between rows are passed over; a column that is not
/// wanted may hold anything.
///
/// `read` throws RecordingError, with line and column, at a row with another number of fields than
/// the first, at a text or a number that no double holds in a wanted column, at a gap in one that
/// is no vibration column, and where the time runs backward.
class CsvFile : public SampleSource {
public:
    /// Finds the layout (table_layout.h) and throws as that does.
    explicit CsvFile(const std::filesystem::path& file);

    const SourceHead& head() const override { return layout_.head; }
    std::vector<std::vector<double>> read(std::span<const WantedColumn> wanted) override;

private:
    std::filesystem::path file_;
    TableLayout layout_;
};

}  // namespace Rotavue::Workbench
