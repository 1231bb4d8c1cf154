#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/recording/recording_options.h"
#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// The beginning of a recording's file, before anybody says what its numbers mean.
struct FileBeginning {
    std::filesystem::path file;
    SourceHead head;
    std::vector<std::vector<std::string>> rows;  ///< the first rows of values, as they stand there
    std::string shape;  ///< the same for files of one origin: kind, columns and units
};

/// What it tells.
struct ImportPreview {
    std::filesystem::path file;
    std::vector<RecordingColumn> columns;        ///< with the roles that were guessed
    std::vector<std::vector<std::string>> rows;  ///< the first rows of values, as they stand there
    std::optional<double> rate;                  ///< samples per second, if the header tells it
    std::string unit;                            ///< of the displacements, if it tells one
    std::string machine;                         ///< its name, if the header tells it
    std::string point;                           ///< that of the measuring point likewise
    bool hasNames = false;                       ///< of columns, as the file gives them
    bool isSure = false;  ///< names tell of one plane alone what each column is, and the rate
};

/// Rows of a preview.
inline constexpr std::size_t ImportRowCount = 12;

/// Reads the beginning. Throws RecordingError for what is no recording.
///
/// What is read is bounded by lines, not by the file: some kB of a usual one. Only a file whose
/// first thousand lines are as long as lines may be (line_reader.h) has more than a millisecond's
/// worth of them. A disk may take as long as it likes: any thread may ask.
FileBeginning readBeginning(const std::filesystem::path& file);

/// What the beginning tells; `options` are what is known already. Roles that cannot be guessed are
/// left open, the others are told.
ImportPreview previewOf(const FileBeginning& beginning, const RecordingOptions& options = {});

/// Throws RecordingError where the file has fewer than two columns that may be probes: no answer
/// could make a plane of it.
void refuseSingleProbe(const ImportPreview& preview);

}  // namespace Rotavue::Workbench
