#pragma once

#include <filesystem>

#include "workbench/files/import_preview.h"
#include "workbench/recording/recording_options.h"

namespace Rotavue::Workbench {

/// What has to be read of a recording before it is clear what somebody must be asked about it.
struct ImportFacts {
    FileBeginning beginning;
    bool hasMachineFile = false;  ///< one lies beside it
    RecordingOptions usual;       ///< what that tells, but for what is wrong in it
    RecordingOptions known;  ///< what was told already, and below it what its machine file tells
};

/// Reads them; `told` is what was told already. Takes as long as the disk does: any thread may ask.
/// Throws RecordingError for what is no recording.
ImportFacts readImportFacts(const std::filesystem::path& file, const RecordingOptions& told);

}  // namespace Rotavue::Workbench
