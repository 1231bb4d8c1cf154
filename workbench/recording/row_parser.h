#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "workbench/recording/number_field.h"
#include "workbench/recording/sample_source.h"
#include "workbench/recording/table_layout.h"

namespace Rotavue::Workbench {

/// What lies before a stretch of a table's text.
struct RowsBefore {
    std::size_t lines = 0;       ///< of the file, with its header
    std::size_t rows = 0;        ///< of numbers
    std::optional<double> time;  ///< of the last row, where a time column is read
};

/// The rows of a stretch of text.
struct ParsedRows {
    std::vector<std::vector<double>> values;  ///< as the wanted columns
    std::size_t lines = 0;
    std::size_t rows = 0;
};

/// Turns text into the values of the wanted columns, row by row. Throws RecordingError as
/// `CsvFile::read` tells. Without a state of its own: several threads may use one.
class RowParser {
public:
    /// The layout must outlive the parser.
    RowParser(const std::filesystem::path& file, const TableLayout& layout,
              std::span<const WantedColumn> wanted);

    ParsedRows parse(std::string_view text, const RowsBefore& before) const;

    /// Whether the rows may stand behind these. What else is wrong with them, `parse` has refused.
    bool follows(const ParsedRows& rows, const RowsBefore& before) const;

    /// What lies before the text behind these rows.
    RowsBefore behind(const ParsedRows& rows, const RowsBefore& before) const;

private:
    class Run;

    std::filesystem::path file_;
    const TableLayout& layout_;
    std::vector<WantedColumn> wanted_;
    std::optional<std::size_t> time_;  // its place among the wanted columns
};

}  // namespace Rotavue::Workbench
