#include "workbench/recording/recording.h"

#include <algorithm>
#include <memory>

#include "workbench/recording/csv_file.h"
#include "workbench/recording/input_file.h"
#include "workbench/recording/machine_file.h"
#include "workbench/recording/recording_builder.h"
#include "workbench/recording/wav_file.h"

namespace Rotavue::Workbench {
namespace {

std::unique_ptr<SampleSource> openSource(const std::filesystem::path& file) {
    if (isWavFile(file) || file.extension() == ".wav") return std::make_unique<WavFile>(file);
    return std::make_unique<CsvFile>(file);
}

}  // namespace

bool Recording::hasMark() const {
    return hasTacho() && keyphasorKind != KeyphasorKind::Speed && pulsesPerTurn == 1;
}

Recording readRecording(const std::filesystem::path& file, const RecordingOptions& options,
                        const ReadingWatch& watch) {
    checkOptions(options);
    const std::unique_ptr<SampleSource> source = openSource(file);
    const ReadingProgress progress(watch);
    return RecordingBuilder(file, *source, withMachineFile(file, options)).build(progress);
}

}  // namespace Rotavue::Workbench
