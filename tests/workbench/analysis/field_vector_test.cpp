#include "workbench/analysis/field_vector.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(FieldVector, LagsFromThePulseToTheNextPositivePeak) {
    // cos(a) peaks at the pulse, sin(a) a quarter of a turn behind it, -cos(a) half a turn.
    const struct {
        double cosine, sine, amplitude, lag;
    } cases[] = {{2, 0, 2, 0}, {0, 3, 3, 90}, {-1, 0, 1, 180}, {0, -1, 1, 270}, {3, 4, 5, 53.1301}};
    for (const auto& one : cases) {
        const FieldVector vector = fieldVector(one.cosine, one.sine);
        EXPECT_NEAR(vector.amplitude, one.amplitude, 1e-12);
        EXPECT_NEAR(vector.phaseLag, one.lag, 1e-4);
    }
}

TEST(FieldVector, PeaksWhereItsLagSays) {
    // 2X at 60 degrees lag peaks 60 / 2 = 30 degrees of the shaft behind the pulse.
    const FieldVector vector{8.0, 60.0};
    EXPECT_NEAR(vector.valueAt(2.0, 30.0 / 360.0), 8.0, 1e-12);
    EXPECT_NEAR(vector.valueAt(2.0, 0.0), 4.0, 1e-12);
    EXPECT_NEAR(vector.phasor().real(), 4.0, 1e-12);
    EXPECT_NEAR(vector.phasor().imag(), -8.0 * std::sqrt(0.75), 1e-12);
}

TEST(FieldVector, ScalesFromPeak) {
    EXPECT_EQ(scaleFactor(AmplitudeScale::Peak), 1.0);
    EXPECT_EQ(scaleFactor(AmplitudeScale::PeakPeak), 2.0);
    EXPECT_DOUBLE_EQ(scaleFactor(AmplitudeScale::Rms), std::sqrt(0.5));
}

}  // namespace
}  // namespace Rotavue::Workbench
