#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// How a text file is laid out, found from its beginning.
struct TableLayout {
    char delimiter = ',';
    std::size_t columnCount = 0;
    std::size_t headerLine = 0;         ///< line of the columns' names; 0: none
    std::size_t firstDataLine = 0;      ///< line of the first row of numbers
    std::uint64_t firstDataOffset = 0;  ///< bytes of the file before that line
    SourceHead head;
};

/// Rows that are looked at for the preview of a table without names.
inline constexpr std::size_t PreviewRowCount = 256;

/// Finds the layout. The first line of nothing but numbers and gaps, at least two of them, is the
/// first row; tab, else semicolon, else comma delimits. Above it may stand, from below: a line of
/// units, a line of names, then lines of keys and values or free text.
///
/// Throws RecordingError if there is no such row among the first 1000 lines, if the names are more
/// or fewer than the row's fields, or if a row of numbers above it holds a text.
TableLayout findTableLayout(const std::filesystem::path& file);

}  // namespace Rotavue::Workbench
