#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "workbench/recording/far_mean.h"
#include "workbench/recording/recording.h"
#include "workbench/recording/sample_source.h"

namespace Rotavue::Workbench {

/// Makes a recording from a file's columns: gives each its role, reads those that are wanted, and
/// turns them into sample rate, displacements and shaft angle, with the facts about the machine.
class RecordingBuilder {
public:
    /// The source is used by `build` and must outlive it; the options are those of the machine file
    /// and of the caller in one.
    RecordingBuilder(const std::filesystem::path& file, SampleSource& source,
                     RecordingOptions options);

    /// Called once. Throws RecordingError and ReadingCancelled.
    Recording build(const ReadingProgress& progress);

private:
    void noteFurtherPlanes();
    void readColumns(const ReadingProgress& progress);
    Samples taken(ColumnRole role);
    const RecordingColumn* columnOf(ColumnRole role) const;

    void takeRate();
    void takeTime(const Samples& time);

    void takeDisplacements();
    Samples displacement(ColumnRole role, const ProbeOptions& probe);
    std::optional<FarMean> farMeanOf(const Samples& values, const ProbeOptions& probe) const;
    void noteFarProbe(const char* name, const std::optional<FarMean>& far);
    void noteTurnedProbe(const char* name, const ProbeOptions& probe);
    void checkPairs() const;
    void noteGaps();

    void takeKeyphasor();
    void takePulses(Samples volts);
    void takeRamp(Samples column);
    void takeSpeed(Samples column);
    void noteFastTurns();
    void noteMissingMark();

    void takeFacts();
    std::string unit() const;

    SampleSource& source_;
    RecordingOptions options_;
    std::vector<WantedColumn> wanted_;
    std::vector<Samples> values_;  ///< as `wanted_`
    Recording recording_;
};

}  // namespace Rotavue::Workbench
