#include "tests/plugin/orbit_control/control_test.h"
#include "tests/support/memory_meter.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

class Allocation : public ControlTest {
protected:
    Allocation() {
        key.graph.setHistoryType(1);
        host.description.host.sampleRate = 1000.0;
        std::vector<double> values(2000, 1.5);
        describeOrbit("orbit", values, values).sampleRate = 1000.0;
        host.description.host.currentPosition = {2, 0};
        assignGroup({"orbit"});
    }

    std::int64_t ofAFrameWith(double points) {
        key.displayTime = points;
        draw();
        const std::int64_t before = Tests::MemoryMeter::tried();
        draw();
        return Tests::MemoryMeter::tried() - before;
    }
};

TEST_F(Allocation, PointOfARawOrbitCostsNone) {
    for (const bool acquiring : {true, false}) {
        host.description.host.acquiring = acquiring;
        const std::int64_t few = ofAFrameWith(10.0);
        EXPECT_GT(few, 0) << "the counting works";
        EXPECT_EQ(ofAFrameWith(1000.0), few) << acquiring;
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
