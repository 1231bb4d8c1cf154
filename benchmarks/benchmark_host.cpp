#include "benchmarks/benchmark_host.h"

#include "benchmarks/null_canvas.h"
#include "host_kit/memory/memory_host.h"

#include <cmath>

namespace Rotavue::Benchmarks {
namespace {

class MemoryBenchmarkHost final : public BenchmarkHost {
public:
    MemoryBenchmarkHost(std::int32_t points, Mode mode) {
        HostKit::HostFacts& facts = host_.description.host;
        facts.acquiring = mode == Mode::Acquiring;
        facts.sampleRate = 10.0 * points;
        facts.acquiredSampleCount = points;
        facts.currentPosition = {(points - 1) / facts.blockSize, (points - 1) % facts.blockSize};
        describeOrbit(host_.description.channels["orbit"], points);
        host_.description.assigned.groups = {{{"orbit"}, {{L"OrbitType", L"Raw"}}}};
        host_.description.assigned.slots = {{1}};
    }

    Host::Ref<Host::IHostApp> app() final { return host_.app(); }
    Host::Ref<Host::IHostVisualControl> control() final { return host_.control(); }
    Host::Ref<Host::IHostChannel> orbit() final { return host_.channel("orbit"); }
    Host::Ref<Host::IHostCanvas> canvas() final { return nullCanvas(); }

private:
    // Fifty turns a second of a shaft that whirls: a curve that fills the plot and never repeats.
    static void describeOrbit(HostKit::ChannelDescription& orbit, std::int32_t points) {
        orbit.name = L"Shaft";
        orbit.unit = L"um";
        orbit.sampleCount = points;
        orbit.sampleCounter = points;
        orbit.sampleRate = 10.0 * points;
        orbit.properties = {{L"Orbit X Angle", L"45"}, {L"Orbit Y Angle", L"315"}};
        auto& x = orbit.values[4];
        auto& y = orbit.values[5];
        for (std::int32_t i = 0; i < points; ++i) {
            const double angle = 0.0123 * i;
            x.push_back(40.0 * std::sin(angle) + 7.0 * std::sin(0.4301 * angle));
            y.push_back(30.0 * std::cos(angle) + 7.0 * std::cos(0.4301 * angle));
        }
    }

    HostKit::MemoryHost host_;
};

}  // namespace

std::unique_ptr<BenchmarkHost> makeBenchmarkHost(std::int32_t points, Mode mode) {
    return std::make_unique<MemoryBenchmarkHost>(points, mode);
}

}  // namespace Rotavue::Benchmarks
