#include <cmath>
#include <complex>
#include <fstream>
#include <iterator>
#include <numbers>

#include "examples/example_files.h"
#include "examples/example_list.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Examples {
namespace {

using Workbench::Recording;
using Phasor = std::complex<double>;

constexpr std::uint64_t Seed = 7;

class ExamplesTest : public Workbench::ScratchFolder {
protected:
    Recording written(const Example& example) const {
        return Workbench::readRecording(writeExample(example, Seed, at("")));
    }
    std::string bytesOf(std::string_view name) const {
        std::ifstream stream(at(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

Example exampleNamed(std::string_view name) {
    for (Example& example : allExamples()) {
        if (example.name == name) return example;
    }
    throw std::invalid_argument(std::string(name));
}

// The shaft angle in radians, running on from turn to turn.
std::vector<double> unwrapped(const Workbench::Samples& angle) {
    std::vector<double> running = {radians(angle.front())};
    for (std::size_t i = 1; i < angle.size(); ++i) {
        running.push_back(running.back() + radians(std::remainder(angle[i] - angle[i - 1], 360.0)));
    }
    return running;
}

// The phasor of one order in a stretch of samples: twice the mean of value exp(-j order angle).
Phasor measured(const Workbench::Samples& values, const std::vector<double>& angle, double order,
                std::size_t first, std::size_t end) {
    Phasor sum;
    for (std::size_t i = first; i < end; ++i)
        sum += values[i] * std::polar(1.0, -order * angle[i]);
    return 2.0 * sum / static_cast<double>(end - first);
}

TEST(Whirl, IsReadByProbesWhereTheyStand) {
    // A circle of 10 with the rotation, counter-clockwise: 10 cos to the right, 10 sin upward.
    const Whirl circle = {1.0, 10.0, 0.0, 0.0, 0.0};
    const Position quarter = positionOf(circle, std::numbers::pi / 2.0, Sense::CounterClockwise);
    EXPECT_NEAR(quarter.u, 0.0, 1e-12);
    EXPECT_NEAR(quarter.v, 10.0, 1e-12);
    EXPECT_NEAR(readingOf({3.0, 4.0}, 90.0), 3.0, 1e-12);
    EXPECT_NEAR(readingOf({3.0, 4.0}, 0.0), 4.0, 1e-12);
    EXPECT_NEAR(readingOf({3.0, 4.0}, 315.0), std::sqrt(0.5), 1e-12);  // (4 - 3) / sqrt 2
    // cos(angle - lag): lag 0 to the right, 90 at the top; clockwise the top is -sin: lag 270.
    EXPECT_NEAR(std::abs(phasorAt(circle, 90.0, Sense::CounterClockwise) - Phasor(10, 0)), 0,
                1e-12);
    EXPECT_NEAR(std::abs(phasorAt(circle, 0.0, Sense::CounterClockwise) - Phasor(0, -10)), 0,
                1e-12);
    EXPECT_NEAR(std::abs(phasorAt(circle, 0.0, Sense::Clockwise) - Phasor(0, 10)), 0, 1e-12);
}

TEST(Whirl, AgreesWithItsPhasorsAtEveryAngle) {
    const Whirl whirl = {0.46, 7.0, 20.0, 3.0, 130.0};
    for (const Sense sense : {Sense::Clockwise, Sense::CounterClockwise}) {
        for (double angle = 0.0; angle < 30.0; angle += 0.7) {
            const double read = readingOf(positionOf(whirl, angle, sense), 315.0);
            const Phasor phasor = phasorAt(whirl, 315.0, sense);
            EXPECT_NEAR(read, (phasor * std::polar(1.0, 0.46 * angle)).real(), 1e-12);
        }
    }
}

TEST(FlexibleRotor, RespondsAsItsFormulaSays) {
    const FlexibleRotor rotor = {10.0, 0.0, 3000.0, 3000.0, 0.1, 100.0, 1500.0};
    // At the critical speed e / (2 j damping) = 50, a quarter turn behind.
    EXPECT_NEAR(std::abs(unbalanceResponse(rotor, 3000.0, 3000.0) - Phasor(0, -50)), 0, 1e-12);
    // At twice that, 4 e / (-3 + 0.4 j): nearly the eccentricity, nearly opposite.
    EXPECT_NEAR(std::abs(unbalanceResponse(rotor, 3000.0, 6000.0)), 40 / std::hypot(3, 0.4), 1e-12);
    // With equal stiffness a circle: the top reads the same a quarter turn later.
    const Phasor right = phasorAt(rotor, 3000.0, 90.0, Sense::CounterClockwise);
    const Phasor up = phasorAt(rotor, 3000.0, 0.0, Sense::CounterClockwise);
    EXPECT_NEAR(std::abs(up - right * Phasor(0, -1)), 0, 1e-12);
}

TEST(FlexibleRotor, LiftsFromTheBottomWithTheRotation) {
    const FlexibleRotor rotor = {10.0, 0.0, 3000.0, 3000.0, 0.1, 100.0, 1500.0};
    EXPECT_NEAR(restingPlace(rotor, 0.0, Sense::CounterClockwise).v, -100.0, 1e-12);
    // At the lift speed the ratio is a half: tan a = pi / 4 sqrt 3, distance 50.
    const Position half = restingPlace(rotor, 1500.0, Sense::CounterClockwise);
    EXPECT_NEAR(std::hypot(half.u, half.v), 50.0, 1e-12);
    EXPECT_NEAR(half.u / -half.v, std::numbers::pi / 4.0 * std::sqrt(3.0), 1e-12);
    EXPECT_NEAR(restingPlace(rotor, 1500.0, Sense::Clockwise).u, -half.u, 1e-12);
}

TEST_F(ExamplesTest, AreTheSameBytesForTheSameSeed) {
    const Example example = exampleNamed("misalignment");
    writeExample(example, Seed, at(""));
    const std::string first = bytesOf("misalignment.csv");
    writeExample(example, Seed, at(""));
    EXPECT_EQ(bytesOf("misalignment.csv"), first);
    writeExample(example, Seed + 1, at(""));
    EXPECT_NE(bytesOf("misalignment.csv"), first);
}

TEST_F(ExamplesTest, AreReadWithTheirFacts) {
    for (const Example& example : allExamples()) {
        const Recording recording = written(example);
        const bool clockwise = example.sense == Sense::Clockwise;
        EXPECT_EQ(recording.sampleRate, example.rate) << example.name;
        EXPECT_EQ(recording.sampleCount(), sampleCountOf(example)) << example.name;
        EXPECT_EQ(recording.machine.unit, "um") << example.name;
        EXPECT_EQ(recording.machine.xAngle, example.probes.x) << example.name;
        EXPECT_EQ(recording.machine.yAngle, example.probes.y) << example.name;
        EXPECT_EQ(recording.machine.clearanceWidth, example.clearanceWidth) << example.name;
        EXPECT_EQ(recording.machine.rotation, clockwise ? Workbench::Rotation::Clockwise
                                                        : Workbench::Rotation::CounterClockwise);
        EXPECT_TRUE(recording.hasTacho()) << example.name;
        EXPECT_TRUE(recording.notes.empty()) << example.name;
    }
}

TEST_F(ExamplesTest, HoldTheirTruth) {
    for (const Example& example : allExamples()) {
        if (example.rotor) continue;
        const Recording recording = written(example);
        EXPECT_NEAR(recording.meanSpeed, example.startRpm, 1e-4 * example.startRpm);
        const std::vector<double> angle = unwrapped(recording.angle);
        for (const Whirl& whirl : example.whirls) {
            for (const bool isX : {true, false}) {
                const double probe = isX ? example.probes.x : example.probes.y;
                Phasor truth = phasorAt(whirl, probe, example.sense);
                if (whirl.order == 1.0) {
                    truth += phasorAt(example.runOut, 1, degreesBehindMark(example, probe));
                }
                const Phasor found =
                    measured(isX ? recording.x : recording.y, angle, whirl.order, 0, angle.size());
                // 1 % of the vector, and what noise and the other orders leak into it.
                EXPECT_LT(std::abs(found - truth), 0.01 * std::abs(truth) + 0.15)
                    << example.name << " order " << whirl.order;
            }
        }
    }
}

TEST_F(ExamplesTest, RunUpFollowsItsRotorThroughTheCriticalSpeed) {
    const Example example = exampleNamed("run-up");
    const Recording recording = written(example);
    const std::vector<double> angle = unwrapped(recording.angle);
    // 3000 rpm are reached after (3000 - 600) / 5400 of 8 s; 4 turns of 20 ms around it.
    const auto middle = static_cast<std::size_t>(8.0 * 2400.0 / 5400.0 * 10'000.0);
    const Phasor found = measured(recording.x, angle, 1.0, middle - 400, middle + 400);
    const Phasor truth = phasorAt(*example.rotor, 3000.0, example.probes.x, example.sense);
    EXPECT_LT(std::abs(found - truth), 0.05 * std::abs(truth));
    const Position rest = restingPlace(*example.rotor, 3000.0, example.sense);
    double mean = 0.0;
    for (std::size_t i = middle - 400; i < middle + 400; ++i)
        mean += recording.x[i] / 800.0;
    EXPECT_NEAR(mean, readingOf(rest, example.probes.x), 0.5);
}

}  // namespace
}  // namespace Rotavue::Examples
