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
    bool isSure = false;  ///< names tell what each column is, and how fast it was sampled
    std::string shape;    ///< the same for files of one origin: kind, columns and units
};

/// Rows of a preview.
inline constexpr std::size_t ImportRowCount = 12;

/// Reads the beginning of a recording; `options` are what is known already. Throws RecordingError
/// for what is no recording. Roles that cannot be guessed are left open.
ImportPreview previewImport(const std::filesystem::path& file,
                            const RecordingOptions& options = {});

}  // namespace Rotavue::Workbench
