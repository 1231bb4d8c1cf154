#include "tests/fuzz/memory_file.h"
#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/signal_check.h"
#include "workbench/recording/recording.h"
#include "workbench/recording/recording_error.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace {

using namespace Rotavue;

void check(bool holds) {
    if (!holds) std::abort();
}

/// What every reader of a recording relies on.
void checkPromises(const Workbench::Recording& recording) {
    check(recording.sampleCount() > 0 && recording.x.size() == recording.y.size());
    check(std::isfinite(recording.sampleRate) && recording.sampleRate > 0.0);
    check(recording.angle.empty() || recording.angle.size() == recording.x.size());
    check(std::all_of(recording.angle.begin(), recording.angle.end(),
                      [](double angle) { return angle >= 0.0 && angle < 360.0; }));
    const auto noInfinity = [](double value) { return !std::isinf(value); };
    check(std::all_of(recording.x.begin(), recording.x.end(), noInfinity));
    check(std::all_of(recording.y.begin(), recording.y.end(), noInfinity));
    check(std::isfinite(recording.meanSpeed) && recording.meanSpeed >= 0.0);
}

void read(const std::filesystem::path& file, const Workbench::RecordingOptions& options) try {
    Workbench::Recording recording = Workbench::readRecording(file, options);
    checkPromises(recording);
    Workbench::checkProbes(recording);
    Workbench::rawOrbit(std::move(recording), {"orbit", 0});
} catch (const Workbench::RecordingError& error) {
    check(std::string_view(error.what()).find('\n') == std::string_view::npos);
}

}  // namespace

/// A recording; one that begins with a brace is led by its machine file, up to the first 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input = Fuzz::textOf(data, size);
    Workbench::RecordingOptions options;
    std::optional<Fuzz::MemoryFile> machine;
    if (input.starts_with('{')) {
        const std::size_t end = std::min(input.find('\0'), input.size());
        options.machineFile = machine.emplace(input.substr(0, end)).path();
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    const Fuzz::MemoryFile recording(input);
    read(recording.path(), options);
    return 0;
}
