#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// What a recording's beginning tells before it is read.
struct ImportPreview {
    std::filesystem::path file;
    std::vector<RecordingColumn> columns;        ///< with the roles that were guessed
    std::vector<std::vector<std::string>> rows;  ///< the first rows of values, as they stand there
    std::optional<double> rate;                  ///< samples per second, if the header tells it
    std::string unit;                            ///< of the displacements, if it tells one
    std::string machine;                         ///< its name, if the header tells it
    std::string point;                           ///< that of the measuring point likewise
    bool isSure = false;  ///< names tell of one plane alone what each column is, and the rate
    std::string shape;    ///< the same for files of one origin: kind, columns and units
};

/// Rows of a preview.
inline constexpr std::size_t ImportRowCount = 12;

/// Reads the beginning of a recording; `options` are what is known already. Throws RecordingError
/// for what is no recording. Roles that cannot be guessed are left open, the others are told.
ImportPreview previewImport(const std::filesystem::path& file,
                            const RecordingOptions& options = {});

}  // namespace Rotavue::Workbench
