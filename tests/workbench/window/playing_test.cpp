#include "tests/support/memory_meter.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/window/orbit_view.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cstdint>

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
    // A lap shows the same moments as every other one, and so the same digits: what is kept of
    // those, glyphs above all, is there after the first lap, while a later frame may still bring a
    // new one.
    const auto livingAfterLap = [&] {
        bench.setCursor(0.3);
        for (int frame = 0; frame < 20; ++frame) {
            bench.playback().advance(1.0 / 30.0);
            view.render(&screen);
        }
        return MemoryMeter::living();
    };
    bench.playback().play();
    livingAfterLap();
    const std::int64_t before = livingAfterLap();
    EXPECT_EQ(livingAfterLap(), before);
}

}  // namespace
}  // namespace Rotavue::Workbench
