#include "plugin/orbit_control/repeated_quotient.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(RepeatedQuotient, IsTheQuotientFromTheFirstCallOn) {
    RepeatedQuotient quotient;
    EXPECT_EQ(quotient.of(0.0, 1.0), 0.0);
    EXPECT_EQ(quotient.of(1.0, 3.0), 1.0 / 3.0);
    EXPECT_EQ(quotient.of(1.0, 3.0), 1.0 / 3.0);
    EXPECT_EQ(quotient.of(2.0, 3.0), 2.0 / 3.0) << "another dividend";
    EXPECT_EQ(quotient.of(2.0, 7.0), 2.0 / 7.0) << "another divisor";
    EXPECT_EQ(quotient.of(1.0, 3.0), 1.0 / 3.0);
}

TEST(RepeatedQuotient, TellsTheZerosApart) {
    constexpr double Endless = std::numeric_limits<double>::infinity();
    RepeatedQuotient quotient;
    EXPECT_EQ(quotient.of(1.0, 0.0), Endless);
    EXPECT_EQ(quotient.of(1.0, -0.0), -Endless);
    EXPECT_FALSE(std::signbit(quotient.of(0.0, 5.0)));
    EXPECT_TRUE(std::signbit(quotient.of(-0.0, 5.0)));
}

TEST(RepeatedQuotient, GetsOverWhatIsNoNumber) {
    RepeatedQuotient quotient;
    EXPECT_TRUE(std::isnan(quotient.of(0.0, 0.0)));
    EXPECT_TRUE(std::isnan(quotient.of(std::nan(""), 2.0)));
    EXPECT_EQ(quotient.of(6.0, 2.0), 3.0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
