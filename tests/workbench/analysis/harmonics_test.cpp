#include "workbench/analysis/harmonics.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();
constexpr OrderVectors First{1.0, {40, 30}, {35, 121}};
constexpr OrderVectors Second{2.0, {8, 60}, {6, 333}};

Harmonics found(const Recording& recording, const std::vector<double>& orders,
                const TimeSpan& span = {}) {
    return findHarmonics(recording, ShaftTrack(recording), orders, span);
}

void expectVector(const FieldVector& vector, const FieldVector& truth, double tolerance) {
    EXPECT_NEAR(vector.amplitude, truth.amplitude, tolerance);
    EXPECT_LT(degreesApart(vector.phaseLag, truth.phaseLag), 10.0 * tolerance);
}

TEST(Harmonics, AreAmplitudeAndLagFromThePulse) {
    const Recording recording = generate({.orders = {First, Second}, .xMean = -200.0});
    const Harmonics harmonics = found(recording, {2.0, 1.0});
    ASSERT_EQ(harmonics.orders.size(), 2u);
    EXPECT_EQ(harmonics.orders[0].order, 2.0);
    expectVector(harmonics.orders[0].x, Second.x, 1e-3);
    expectVector(harmonics.orders[0].y, Second.y, 1e-3);
    expectVector(harmonics.orders[1].x, First.x, 1e-3);
    expectVector(harmonics.orders[1].y, First.y, 1e-3);
    EXPECT_EQ(harmonics.unit, "um");
    EXPECT_NEAR(harmonics.speed, 3000.0, 1e-6);
    EXPECT_EQ(harmonics.turns, 49.0);
}

TEST(Harmonics, TellTheLagOfABrokenOrderFromTheFirstPulseOfTheWindow) {
    // The first pulse from 0.5 s on is the rotor's turn 26 at 0.515 s: 0.43 * 26 cycles after the
    // rotor's angle 0, so the lag that counts from there is shorter by 360 * 0.43 * 26 degrees.
    const OrderVectors whirl{0.43, {5, 80}, {5, 170}};
    const Recording recording = generate({.duration = 2.0, .orders = {First, whirl}});
    const Harmonics harmonics = found(recording, {0.43, 1.0}, {0.5, 2.0});
    EXPECT_NEAR(harmonics.span.from, 0.515, 1e-9);
    expectVector(harmonics.orders[0].x, {5, 80 - 360 * 0.43 * 26}, 1e-3);
    expectVector(harmonics.orders[0].y, {5, 170 - 360 * 0.43 * 26}, 1e-3);
}

TEST(Harmonics, LeaveSamplesInGapsOut) {
    Recording recording = generate({.orders = {First, Second}});
    for (std::size_t i = 3000; i < 3700; ++i)
        recording.x.edit()[i] = Gap;
    for (std::size_t i = 6000; i < 6400; ++i)
        recording.y.edit()[i] = std::numeric_limits<double>::infinity();
    const Harmonics harmonics = found(recording, {1.0, 2.0});
    expectVector(harmonics.orders[0].x, First.x, 1e-3);
    expectVector(harmonics.orders[1].y, Second.y, 1e-3);
}

TEST(Harmonics, AreFoundAtFewSamplesATurn) {
    // 6 samples a turn: 2X has three a cycle.
    const GeneratedRotor rotor{.sampleRate = 300, .duration = 4, .orders = {First, Second}};
    const Harmonics harmonics = found(generate(rotor), {1.0, 2.0});
    expectVector(harmonics.orders[0].x, First.x, 1e-3);
    expectVector(harmonics.orders[1].x, Second.x, 1e-3);
}

TEST(Harmonics, RefuseWhatCannotBeToldInOneLine) {
    const Recording recording = generate({.orders = {First}});
    Recording broken = recording;
    for (std::size_t i = 0; i < 6000; ++i)
        broken.x.edit()[i] = Gap;
    const struct {
        Recording recording;
        std::vector<double> orders;
        TimeSpan span;
        const char* line;
    } cases[] = {
        {withoutKeyphasor(recording),
         {1.0},
         {},
         "the harmonic analysis needs the shaft's angle, "
         "and the recording has no keyphasor"},
        {recording, {}, {}, "1 to 64 orders can be sought at once, not 0"},
        {recording, {1.0, 0.0}, {}, "an order is a number above 0, not 0"},
        {recording, {-2.0}, {}, "an order is a number above 0, not -2"},
        {recording, {Gap}, {}, "an order is a number above 0, not nan"},
        {recording, {101.0}, {}, "101X needs more than 202 samples a turn, and there are 200"},
        {recording, {1.0, 1.0}, {}, "too few turns to tell 1X from 1X: there are 49 turns"},
        {recording,
         {0.43},
         {0.1, 0.15},
         "too few turns to tell 0.43X from the mean: there is 1 "
         "turn"},
        {recording,
         {1.0, 1.2},
         {0.1, 0.2},
         "too few turns to tell 1X from 1.2X: there are 4 "
         "turns"},
        {broken, {1.0}, {}, "the harmonic analysis finds too many gaps between 0.015 and 0.995 s"},
    };
    for (const auto& one : cases) {
        const auto analysis = [&] { found(one.recording, one.orders, one.span); };
        EXPECT_EQ(refusalOf(analysis), one.line);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
