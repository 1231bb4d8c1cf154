#include "workbench/files/import_facts.h"

#include <system_error>

#include "workbench/recording/machine_file.h"

namespace Rotavue::Workbench {

ImportFacts readImportFacts(const std::filesystem::path& file, const RecordingOptions& told) {
    std::error_code fault;
    return {.beginning = readBeginning(file),
            .hasMachineFile = std::filesystem::exists(machineFileOf(file), fault),
            .usual = withSoundItems(file, {}),
            .known = withSoundItems(file, told)};
}

}  // namespace Rotavue::Workbench
