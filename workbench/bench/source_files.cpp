#include "workbench/bench/source_files.h"

#include "workbench/bench/run_out.h"
#include "workbench/recording/machine_file.h"

namespace Rotavue::Workbench {

std::vector<std::filesystem::path> sourceFiles(const Bench& bench) {
    std::vector<std::filesystem::path> files;
    for (const auto& plane : bench.planes()) {
        const PlaneSource& source = plane->original();
        files.push_back(source.recording.file);
        files.push_back(machineFileOf(source.recording.file));
        if (source.options.machineFile) files.push_back(*source.options.machineFile);
        for (const CurveRequest& curve : plane->curves())
            if (curve.kind == CurveKind::Reference) files.emplace_back(curve.file);
        const auto& runOut = plane->shown().runOut;
        if (runOut && runOut->source.slowRoll) files.push_back(*runOut->source.slowRoll);
    }
    return files;
}

}  // namespace Rotavue::Workbench
