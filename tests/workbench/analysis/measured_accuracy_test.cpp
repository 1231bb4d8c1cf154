#include <gtest/gtest.h>

#include "tests/workbench/analysis/generated_recording.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/harmonics.h"
#include "workbench/analysis/sub_synchronous.h"

namespace Rotavue::Workbench {
namespace {

constexpr double OnePercent = 0.01;
constexpr double ThreePercent = 0.03;

// A run-up with all that a probe sees: 10 kHz, 60 s, 1,500 to 3,000 rpm, 1X 40 um at 30 degrees,
// 2X 8 um at 60 degrees, 0.43X 5 um, noise of 1 um. Y sees each order a quarter of a cycle later.
const GeneratedRotor RunUp{
    .duration = 60.0,
    .firstSpeed = 1500,
    .lastSpeed = 3000,
    .orders = {{1.0, {40, 30}, {40, 120}}, {2.0, {8, 60}, {8, 150}}, {0.43, {5, 0}, {5, 90}}},
    .noise = 1.0,
};

class RunUpAccuracy : public testing::Test {
protected:
    static void SetUpTestSuite() {
        recording = new Recording(generate(RunUp));
        track = new ShaftTrack(*recording);
    }
    static void TearDownTestSuite() {
        delete track;
        delete recording;
    }

    inline static Recording* recording = nullptr;
    inline static ShaftTrack* track = nullptr;
};

void expectWithin(const FieldVector& found, const FieldVector& truth, double part, double degrees) {
    EXPECT_NEAR(found.amplitude, truth.amplitude, part * truth.amplitude);
    EXPECT_LE(degreesApart(found.phaseLag, truth.phaseLag), degrees);
}

TEST_F(RunUpAccuracy, FirstAndSecondOrderHoldInEveryWindowOfOneSecond) {
    const double orders[] = {1.0, 2.0};
    for (int second = 0; second < 60; ++second) {
        SCOPED_TRACE(second);
        const TimeSpan span{static_cast<double>(second), second + 1.0};
        const Harmonics found = findHarmonics(*recording, *track, orders, span);
        expectWithin(found.orders[0].x, {40, 30}, OnePercent, 1.0);
        expectWithin(found.orders[0].y, {40, 120}, OnePercent, 1.0);
        expectWithin(found.orders[1].x, {8, 60}, ThreePercent, 3.0);
        expectWithin(found.orders[1].y, {8, 150}, ThreePercent, 3.0);
    }
}

TEST_F(RunUpAccuracy, SpeedHoldsWithinOneRevolutionAMinute) {
    for (double time = 0.1; time < 59.9; time += 0.5)
        EXPECT_NEAR(track->speedAt(time), RunUp.speedAt(time), 1.0) << time;
}

TEST_F(RunUpAccuracy, AverageLeavesWhatRepeatsWithTheShaft) {
    const AveragedOrbit orbit = averageOrbit(*recording, *track);
    EXPECT_GT(orbit.averages, 2200);
    for (std::size_t k = 0; k < orbit.x.size(); ++k) {
        const double turns = static_cast<double>(k) / 256.0;
        const double truth =
            RunUp.orders[0].x.valueAt(1, turns) + RunUp.orders[1].x.valueAt(2, turns);
        EXPECT_NEAR(orbit.x[k], truth, 0.2) << k;
    }
}

TEST_F(RunUpAccuracy, SubSynchronousOrbitIsTheWhirlUpToTheEnds) {
    const SubSyncOrbit orbit = subSynchronousOrbit(*recording, *track);
    const OrderVectors& whirl = RunUp.orders[2];
    double sum = 0.0;
    double worst = 0.0;
    for (std::size_t i = 0; i < orbit.x.size(); ++i) {
        const double turns = RunUp.turnsAt(static_cast<double>(i) / RunUp.sampleRate);
        const double error = orbit.x[i] - whirl.x.valueAt(whirl.order, turns);
        sum += error * error;
        worst = std::max(worst, std::abs(error));
    }
    // Of the noise of 1 um, spread over 5,000 Hz, 0.9X lets up to 45 Hz pass: 0.095 um.
    EXPECT_LT(std::sqrt(sum / static_cast<double>(orbit.x.size())), 0.12);
    EXPECT_LT(worst, 1.5);
}

}  // namespace
}  // namespace Rotavue::Workbench
