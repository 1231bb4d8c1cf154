#include "benchmarks/bare_loop.h"
#include "benchmarks/benchmark_host.h"
#include "host_kit/loader/message_values.h"
#include "host_kit/loader/module.h"

#include <benchmark/benchmark.h>

#include <cstdint>

/// What a frame of one raw orbit costs beyond the host calls that it cannot do without: `Draw`
/// sends message 42 to the loaded module, `BareLoop` makes the very same calls for the points and
/// nothing else. benchmarks/README.md has the tables.
namespace Rotavue::Benchmarks {
namespace {

HostKit::Module& module() {
    static HostKit::Module loaded(HostKit::programFolder() / "Rotavue64.vc");
    return loaded;
}

void countPoints(benchmark::State& state) {
    const double points = static_cast<double>(state.range(0));
    state.counters["per_point"] = benchmark::Counter(
        points, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void draw(benchmark::State& state, Mode mode) {
    const auto points = static_cast<std::int32_t>(state.range(0));
    const auto host = makeBenchmarkHost(points, mode);
    const auto control = module().makeControl();
    const HostKit::MessageList attach{host->app(), host->control()};
    // A group without a tacho is shown by time, and the time holds exactly the points.
    const HostKit::MessageList slotChanged{0};
    const HostKit::MessageList frame{host->canvas(), 0, 0, 800, 600, 0, 0, 1};
    control->message(2, &attach, nullptr);
    control->message(45, &slotChanged, nullptr);
    for ([[maybe_unused]] auto _ : state)
        control->message(42, &frame, nullptr);
    countPoints(state);
}

void bare(benchmark::State& state, Mode mode) {
    const auto points = static_cast<std::int32_t>(state.range(0));
    const auto host = makeBenchmarkHost(points, mode);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(bareLoop(*host, points, mode));
    countPoints(state);
}

BENCHMARK_CAPTURE(draw, acquiring, Mode::Acquiring)->RangeMultiplier(10)->Range(1000, 1000000);
BENCHMARK_CAPTURE(bare, acquiring, Mode::Acquiring)->RangeMultiplier(10)->Range(1000, 1000000);
BENCHMARK_CAPTURE(draw, stored, Mode::Stored)->RangeMultiplier(10)->Range(1000, 1000000);
BENCHMARK_CAPTURE(bare, stored, Mode::Stored)->RangeMultiplier(10)->Range(1000, 1000000);

}  // namespace
}  // namespace Rotavue::Benchmarks
