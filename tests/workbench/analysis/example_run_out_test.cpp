// The examples' run-out of known truth, taken from their slow roll and taken away at speed.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <filesystem>
#include <stdexcept>

#include "examples/example_files.h"
#include "examples/example_list.h"
#include "tests/workbench/analysis/generated_recording.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/analysis/averaged_orbit.h"
#include "workbench/analysis/compensation.h"
#include "workbench/analysis/harmonics.h"

namespace Rotavue::Workbench {
namespace {

using Phasor = std::complex<double>;

Phasor turned(double size, double degrees) {
    return std::polar(size, degrees * RadiansPerDegree);
}

// At speed the shaft whirls forward with 7 um at 25 degrees and backward with 1 um at 110; in slow
// roll it whirls forward with 0.5 um at 25 degrees, which counts as run-out. A probe at a degrees
// reads F exp(j(p + a - 90)) + B exp(j(q - a + 90)).
Phasor trueMotion(double probe) {
    return turned(7.0 - 0.5, 25.0 + probe - 90.0) + turned(1.0, 110.0 - probe + 90.0);
}

class ExampleRunOutTest : public ScratchFolder {
protected:
    Recording written(std::string_view name) const {
        for (const Examples::Example& example : Examples::allExamples())
            if (example.name == name)
                return readRecording(Examples::writeExample(example, 1, at("")));
        throw std::invalid_argument(std::string(name));
    }

    Recording compensatedAtSpeed(CompensationForm form) const {
        const Recording slow = written("slow-roll");
        const Recording fast = written("run-out");
        return compensated(fast, ShaftTrack(fast), takeSlowRoll(slow, ShaftTrack(slow)), form);
    }
};

// The largest distance of the mean turn of the X probe from the true 1X, both about their means.
double residue(const Recording& recording) {
    const AveragedOrbit orbit = averageOrbit(recording, ShaftTrack(recording));
    double mean = 0.0;
    for (const double value : orbit.x)
        mean += value / static_cast<double>(orbit.x.size());
    double most = 0.0;
    for (std::size_t k = 0; k < orbit.x.size(); ++k) {
        const double degrees = static_cast<double>(k) * orbit.step();
        const double truth = (trueMotion(45.0) * turned(1.0, degrees)).real();
        most = std::max(most, std::abs(orbit.x[k] - mean - truth));
    }
    return most;
}

TEST_F(ExampleRunOutTest, BothFormsUncoverTheTrueFirstOrder) {
    for (const CompensationForm form : {CompensationForm::Vector, CompensationForm::Waveform}) {
        const Recording recording = compensatedAtSpeed(form);
        const std::vector<double> orders{1.0, 2.0};
        const Harmonics found = findHarmonics(recording, ShaftTrack(recording), orders);
        EXPECT_LT(std::abs(found.orders[0].x.phasor() - trueMotion(45.0)), 0.03);
        EXPECT_LT(std::abs(found.orders[0].y.phasor() - trueMotion(315.0)), 0.03);
        EXPECT_LT(found.orders[1].x.amplitude, 0.03);
        EXPECT_LT(found.orders[1].y.amplitude, 0.03);
    }
}

TEST_F(ExampleRunOutTest, WithoutCompensationTheFirstOrderIsFarOff) {
    // The bow alone adds 4 um to it.
    const Recording recording = written("run-out");
    const std::vector<double> orders{1.0};
    const Harmonics found = findHarmonics(recording, ShaftTrack(recording), orders);
    EXPECT_GT(std::abs(found.orders[0].x.phasor() - trueMotion(45.0)), 3.0);
}

TEST_F(ExampleRunOutTest, WaveformTakesTheScratchAwayAndVectorLeavesIt) {
    // The scratch is 12 um deep; its 1X and 2X are 12 um * 0.0696 = 0.84 um each, as the integral
    // of its bell gives them (sqrt(2 / pi) * 5 degrees in radians). The bell's mean, 0.42 um, stays
    // in the mean. So 12 - 0.42 - 2 * 0.84 = 9.9 um of its depth are left by the vector.
    EXPECT_NEAR(residue(compensatedAtSpeed(CompensationForm::Vector)), 9.9, 0.3);
    EXPECT_LT(residue(compensatedAtSpeed(CompensationForm::Waveform)), 0.4);
}

}  // namespace
}  // namespace Rotavue::Workbench
