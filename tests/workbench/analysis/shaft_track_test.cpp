#include "workbench/analysis/shaft_track.h"

#include <gtest/gtest.h>

#include "tests/workbench/analysis/analysis_refusal.h"
#include "tests/workbench/analysis/generated_recording.h"

namespace Rotavue::Workbench {
namespace {

ShaftRun runOf(const std::vector<double>& times) {
    std::vector<TurnMark> marks;
    for (const double time : times)
        marks.push_back({time, static_cast<std::int64_t>(marks.size())});
    return ShaftRun(marks);
}

TEST(ShaftRun, CountsTurnsFromItsFirstMark) {
    const ShaftRun run({{1.0, 0}, {1.5, 1}, {2.5, 3}});
    EXPECT_EQ(run.begin(), 1.0);
    EXPECT_EQ(run.end(), 2.5);
    EXPECT_EQ(run.turnCount(), 3);
    EXPECT_EQ(run.turnAt(1.5), 1.0);
    // Even speed throughout: the mark that is missing lies halfway, and beyond the ends it goes on.
    EXPECT_NEAR(run.timeOf(2.0), 2.0, 1e-12);
    EXPECT_NEAR(run.turnAt(0.75), -0.5, 1e-12);
    EXPECT_NEAR(run.turnAt(2.75), 3.5, 1e-12);
}

TEST(ShaftRun, KnowsTheSpeedOfAConstantAccelerationEverywhere) {
    // turns = t + t^2 / 2: marks at t = sqrt(1 + 2 n) - 1, speed 1 + t turns a second.
    std::vector<double> times;
    for (int n = 0; n < 20; ++n)
        times.push_back(std::sqrt(1.0 + 2.0 * n) - 1.0);
    const ShaftRun run = runOf(times);
    for (const double t : {0.0, 0.3, 1.0, 2.2, times.back()})
        EXPECT_NEAR(run.speedAt(t), 60.0 * (1.0 + t), 1e-6) << t;
}

TEST(ShaftRun, AveragesTheJitterOfSinglePulses) {
    // Every other pulse comes 2 ms early in turns of 100 ms: single intervals are off by 2 %. The
    // parabola through seven marks is symmetric about a mark, so its slope there is that of the
    // line: sum of n * t(n) over sum of n * n; the early marks at n = -3, -1, 1, 3 cancel.
    std::vector<double> times;
    for (int n = 0; n < 21; ++n)
        times.push_back(0.1 * n - (n % 2 == 1 ? 0.002 : 0.0));
    EXPECT_NEAR(runOf(times).speedAt(1.0), 600.0, 0.5);
}

TEST(ShaftRun, OfTwoMarksHasTheSpeedBetweenThem) {
    EXPECT_NEAR(runOf({0.0, 0.5}).speedAt(0.1), 120.0, 1e-9);
}

TEST(ShaftTrack, FollowsARampOfSpeed) {
    const GeneratedRotor rotor{.duration = 10.0, .firstSpeed = 600, .lastSpeed = 1800};
    const ShaftTrack track(generate(rotor));
    ASSERT_EQ(track.runs().size(), 1u);
    EXPECT_TRUE(track.notes().empty());
    for (const double t : {0.2, 3.0, 5.5, 9.9})
        EXPECT_NEAR(track.speedAt(t), rotor.speedAt(t), 0.1) << t;
    // Turn 0 of the run is the rotor's turn 1.
    EXPECT_NEAR(track.runs()[0].turnAt(7.0), rotor.turnsAt(7.0) - 1.0, 1e-4);
}

// Pulses at the rotor's turns as a keyphasor gives them: angle linear between the pulses kept.
Recording fromPulses(const GeneratedRotor& rotor, const std::vector<int>& missing) {
    Recording recording = generate(rotor);
    double before = -1.0;
    std::vector<double> pulses;
    for (std::size_t i = 0; i < recording.sampleCount(); ++i) {
        const double turns = rotor.turnsAt(static_cast<double>(i) / rotor.sampleRate);
        if (before >= 0.0 && std::floor(turns) > std::floor(before)) {
            const double part = (std::floor(turns) - before) / (turns - before);
            pulses.push_back(static_cast<double>(i - 1) + part);
        }
        before = turns;
    }
    for (auto place = missing.rbegin(); place != missing.rend(); ++place)
        pulses.erase(pulses.begin() + *place);
    std::size_t k = 0;
    for (std::size_t i = 0; i < recording.sampleCount(); ++i) {
        while (k + 2 < pulses.size() && static_cast<double>(i) >= pulses[k + 1])
            ++k;
        const double part = (static_cast<double>(i) - pulses[k]) / (pulses[k + 1] - pulses[k]);
        recording.angle.edit()[i] = 360.0 * (part - std::floor(part));
    }
    return recording;
}

TEST(ShaftTrack, BridgesMissingPulsesOnARampAndSaysSo) {
    const GeneratedRotor rotor{.duration = 10.0, .firstSpeed = 1200, .lastSpeed = 2400};
    const ShaftTrack track(fromPulses(rotor, {20, 21, 90}));
    ASSERT_EQ(track.runs().size(), 1u);
    EXPECT_EQ(track.notes(), std::vector<std::string>{"keyphasor: 3 missing pulses bridged"});
    const double start = std::round(rotor.turnsAt(track.runs()[0].begin()));
    for (double t = 0.2; t < 9.8; t += 0.1)
        EXPECT_NEAR(track.runs()[0].turnAt(t) + start, rotor.turnsAt(t), 0.003) << t;
}

TEST(ShaftTrack, FindsTheMostWholeTurnsOfASpan) {
    // 50 turns a second, the first mark at 0.015 s.
    const ShaftTrack track(generate({.duration = 2.0}));
    const WholeTurns turns = track.wholeTurns({0.5, 1.5}, "x");
    EXPECT_EQ(turns.count(), 49);
    EXPECT_NEAR(turns.span().from, 0.515, 1e-9);
    EXPECT_NEAR(turns.span().to, 1.495, 1e-9);
    EXPECT_NEAR(turns.speed(), 3000.0, 1e-6);
    EXPECT_EQ(track.wholeTurns({}, "x").count(), 99);
}

// The recording's shaft stands from one time to another.
void stop(Recording& recording, double from, double to) {
    for (std::size_t i = 0; i < recording.sampleCount(); ++i) {
        const double time = static_cast<double>(i) / recording.sampleRate;
        if (time >= from && time < to) recording.angle.edit()[i] = 120.0;
    }
}

TEST(ShaftTrack, TakesTheLongestStretchWhenTheShaftStandsInBetween) {
    Recording recording = generate({.duration = 3.0});
    stop(recording, 0.7, 1.3);
    const ShaftTrack track(recording);
    ASSERT_EQ(track.runs().size(), 2u);
    EXPECT_EQ(track.notes().size(), 1u);
    EXPECT_EQ(track.speedAt(1.0), 0.0);
    EXPECT_NEAR(track.speedAt(2.0), 3000.0, 1e-6);
    EXPECT_EQ(track.wholeTurns({}, "x").run, &track.runs()[1]);
    EXPECT_EQ(track.wholeTurns({0.0, 1.0}, "x").run, &track.runs()[0]);
    EXPECT_EQ(track.mostTurns({0.8, 1.2}).count(), 0);
}

TEST(ShaftTrack, RefusesWithWhatIsMissing) {
    const Recording turning = generate({.duration = 1.0});
    Recording standing = turning;
    stop(standing, 0.0, 1.0);
    Recording backward = turning;
    for (double& angle : backward.angle.edit())
        angle = angle > 0.0 ? 360.0 - angle : 0.0;
    const struct {
        Recording recording;
        TimeSpan span;
        const char* line;
    } cases[] = {
        {withoutKeyphasor(turning),
         {},
         "this needs the shaft's angle, and the recording has no "
         "keyphasor"},
        {standing, {}, "this needs a whole turn of the shaft, and it stands still"},
        {backward, {}, "this needs an angle that grows with time, and the shaft's falls"},
        {turning,
         {0.5, 0.52},
         "this needs a whole turn of the shaft, and there is none between "
         "0.5 s and 0.52 s"},
        {turning, {7.0}, "this needs a whole turn of the shaft, and there is none behind 7 s"},
    };
    for (const auto& one : cases) {
        const ShaftTrack track(one.recording);
        EXPECT_EQ(refusalOf([&] { track.wholeTurns(one.span, "this"); }), one.line);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
