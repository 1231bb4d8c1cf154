#include "tests/plugin/orbit_control/control_test.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

}  // namespace

// Counts what the whole test program takes from the heap.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

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

    std::size_t ofAFrameWith(double points) {
        key.displayTime = points;
        draw();
        const std::size_t before = allocations;
        draw();
        return allocations - before;
    }
};

TEST_F(Allocation, PointOfARawOrbitCostsNone) {
    for (const bool acquiring : {true, false}) {
        host.description.host.acquiring = acquiring;
        const std::size_t few = ofAFrameWith(10.0);
        EXPECT_GT(few, 0U) << "the counting works";
        EXPECT_EQ(ofAFrameWith(1000.0), few) << acquiring;
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
