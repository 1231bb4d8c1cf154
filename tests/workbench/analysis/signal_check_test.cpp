#include "workbench/analysis/signal_check.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

using Notes = std::vector<std::string>;

Recording sines(double noise = 0.0) {
    return generate({.orders = {{1.0, {40, 30}, {40, 120}}}, .noise = noise});
}

TEST(SignalCheck, SaysNothingOfASoundRecording) {
    EXPECT_EQ(checkProbes(sines()), Notes());
    EXPECT_EQ(checkProbes(sines(1.0)), Notes());
}

TEST(SignalCheck, SaysNothingOfACoarselyDigitisedSine) {
    for (const double step : {0.01, 0.3, 1.0}) {
        Recording recording = sines();
        for (double& value : recording.x.edit())
            value = step * std::round(value / step);
        EXPECT_EQ(checkProbes(recording), Notes()) << step;
    }
}

TEST(SignalCheck, NamesAProbeThatIsClippedAndWhere) {
    Recording recording = sines(0.5);
    for (double& value : recording.x.edit())
        value = std::min(value, 30.0);
    for (double& value : recording.y.edit())
        value = std::max(value, -35.0);
    const Notes notes = checkProbes(recording);
    ASSERT_EQ(notes.size(), 2u);
    // acos(30 / 40) / pi = 23 %, acos(35 / 40) / pi = 16 %.
    EXPECT_EQ(notes[0], "probe X is clipped at 30 um: 23 % of its values lie there");
    EXPECT_EQ(notes[1], "probe Y is clipped at -35 um: 16 % of its values lie there");
}

TEST(SignalCheck, NamesAProbeThatStandsStill) {
    Recording recording = sines();
    recording.y.edit().assign(recording.y.size(), -2.5);
    EXPECT_EQ(checkProbes(recording), Notes{"probe Y stands still at -2.5 um"});
}

TEST(SignalCheck, NamesGaps) {
    Recording recording = sines();
    for (std::size_t i = 0; i < 2500; ++i)
        recording.x.edit()[i] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(checkProbes(recording), Notes{"probe X has gaps: 25 % of its values are missing"});
    recording.x.edit().assign(recording.x.size(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(checkProbes(recording), Notes{"probe X has gaps: 100 % of its values are missing"});
}

TEST(PrecessionCheck, AsksAboutABackwardFirstOrderAlone) {
    // Up peaks a quarter behind right: the orbit runs counter-clockwise.
    const OrderVectors left{1.0, {10, 0}, {10, 90}};
    MachineFacts machine;
    EXPECT_TRUE(checkPrecession(left, machine).empty());
    machine.rotation = Rotation::CounterClockwise;
    EXPECT_TRUE(checkPrecession(left, machine).empty());
    machine.rotation = Rotation::Clockwise;
    EXPECT_EQ(checkPrecession(left, machine).size(), 1u);
}

}  // namespace
}  // namespace Rotavue::Workbench
