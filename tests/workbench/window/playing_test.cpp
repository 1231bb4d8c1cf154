#include "tests/support/memory_meter.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/window/orbit_view.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

namespace MemoryMeter = Meridax::Tests::MemoryMeter;

TEST(Playing, AFrameLeavesNothingOnTheHeap) {
    Bench bench(std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE));
    bench.addPlane(
        preparePlane(generate({.orders = {{.order = 1.0, .x = {40.0, 0.0}, .y = {30.0, 90.0}}}})));
    OrbitView view(bench, bench.planes().front());
    view.resize(500, 420);
    QImage screen(view.size(), QImage::Format_RGB32);
    const auto livingAfterFrame = [&] {
        bench.playback().advance(1.0 / 30.0);
        view.render(&screen);
        return MemoryMeter::living();
    };
    bench.setCursor(0.3);
    bench.playback().play();
    // The first frames fill what is kept for all later ones.
    for (int warmUp = 0; warmUp < 5; ++warmUp)
        livingAfterFrame();
    const std::int64_t before = livingAfterFrame();
    std::int64_t least = livingAfterFrame();
    for (int frame = 0; frame < 15; ++frame)
        least = std::min(least, livingAfterFrame());
    EXPECT_LE(least, before);
}

}  // namespace
}  // namespace Rotavue::Workbench
