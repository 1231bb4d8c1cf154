#include "plugin/orbit_graph/phasor.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(Phasor, HasTheLengthAndTheAngleOfItsTwoParts) {
    // 3 + 4i is 5 long. At angle 0 it stands at its imaginary part, a quarter turn on at its real
    // part, and 53.13 degrees back at 0.
    const Phasor phasor({3, 4});
    EXPECT_NEAR(phasor.at(0), 4, 1e-14);
    EXPECT_NEAR(phasor.at(Pi / 2), 3, 1e-14);
    EXPECT_NEAR(phasor.at(-std::atan2(4.0, 3.0)), 0, 1e-14);
    EXPECT_NEAR(phasor.at(Pi / 2 - std::atan2(4.0, 3.0)), 5, 1e-14);
}

TEST(Phasor, TakesTheRootOfTheSumOfSquares) {
    // The square of 1e200 has no finite number, and so the phasor has no finite length.
    EXPECT_EQ(Phasor({1e200, 0}).at(Pi / 2), HUGE_VAL);
    EXPECT_EQ(Phasor({-2, 0}).at(-Pi / 2), 2);
}

TEST(Phasor, OfNothingStaysAtZero) {
    EXPECT_EQ(Phasor({0, 0}).at(1.5), 0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
