#include "plugin/orbit_control/data_window.h"

#include "tests/plugin/orbit_control/control_test.h"

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

using Host::DataPosition;

struct Cut {
    const char* what;
    double span;  ///< seconds, at 10000 Hz
    DataPosition from;
    DataPosition to;
};

// Blocks of 1000 samples from 1:0 to 9:999, the cursor at 5:500, which is sample 5500.
const Cut Cuts[] = {
    {"half of 0.3 s is 1500 samples", 0.3, {4, 0}, {7, 0}},
    {"half of 0.00015 s is 0.75, rounded to 1", 0.00015, {5, 499}, {5, 501}},
    {"half of 0.0001 s is 0.5, rounded away from 0", 0.0001, {5, 499}, {5, 501}},
    {"nothing", 0.0, {5, 500}, {5, 500}},
    {"held inside what is stored", 100.0, {1, 0}, {9, 999}},
    {"endless", std::numeric_limits<double>::infinity(), {1, 0}, {9, 999}},
    {"beyond 64 bits", 1e300, {1, 0}, {9, 999}},
    {"no number", std::numeric_limits<double>::quiet_NaN(), {1, 0}, {9, 999}},
    {"negative: the ends change places", -0.2, {6, 500}, {4, 500}},
};

class DataWindowTest : public ControlTest {
protected:
    DataWindowTest() {
        host.description.host.currentPosition = {5, 500};
        host.description.host.firstPosition = {1, 0};
        host.description.host.lastPosition = {9, 999};
    }
};

TEST_F(DataWindowTest, CutsTheSpanRoundTheCursor) {
    for (const Cut& cut : Cuts) {
        DataWindow window = DataWindow::read(host.app());
        window.cutSeconds(cut.span);
        EXPECT_EQ(window.from, cut.from) << cut.what;
        EXPECT_EQ(window.to, cut.to) << cut.what;
    }
}

TEST_F(DataWindowTest, AsksAFreshDataObjectForEachField) {
    EXPECT_EQ(callsOf([&] { DataWindow::read(host.app()); }),
              (Lines{
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getSampleRate() -> 10000)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getBlockSize() -> 1000)",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getCurrentPosition() -> [5, 500])",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getFirstPosition() -> [1, 0])",
                  R"(IHostApp.getData() -> "data")",
                  R"(IHostData.getLastPosition() -> [9, 999])",
              }));
}

TEST_F(DataWindowTest, NegativePositionsKeepANegativeOffset) {
    host.description.host.currentPosition = {0, -1500};
    host.description.host.firstPosition = {-9, 0};
    DataWindow window = DataWindow::read(host.app());
    window.cutSeconds(0.0);
    EXPECT_EQ(window.from, (DataPosition{-1, -500}));
}

TEST_F(DataWindowTest, BlockSizeOfZeroIsAnInvalidArgumentOnceItDivides) {
    host.description.host.blockSize = 0;
    DataWindow window = DataWindow::read(host.app());
    expectHostError(0x80070057, [&] { window.cutSeconds(1.0); });
}

TEST_F(DataWindowTest, HostileNumbersDoNotTrap) {
    for (const std::int32_t blockSize : {Smallest, -1, 1, Largest}) {
        for (const std::int32_t block : {Smallest, Largest}) {
            host.description.host.blockSize = blockSize;
            host.description.host.currentPosition = {block, block};
            host.description.host.firstPosition = {Smallest, Smallest};
            host.description.host.lastPosition = {Largest, Largest};
            DataWindow window = DataWindow::read(host.app());
            EXPECT_NO_THROW(window.cutSeconds(1e300));
            EXPECT_NO_THROW(window.cutSeconds(-1e300));
        }
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
