#include "plugin/orbit_control/integer_width.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

TEST(IntegerWidth, SumsTurnOverAt32Bits) {
    EXPECT_EQ(cutTo32(std::int64_t{Largest} + 1), Smallest);
    EXPECT_EQ(cutTo32(std::int64_t{Smallest} - 1), Largest);
    EXPECT_EQ(cutTo32(std::int64_t{Smallest} - Largest), 1);
    EXPECT_EQ(cutTo32(std::int64_t{7} << 32), 0);
    EXPECT_EQ(cutTo32(-5), -5);
}

TEST(IntegerWidth, QuotientsAreTruncatedTowardZero) {
    EXPECT_EQ(quotient32(7, 2), 3);
    EXPECT_EQ(quotient32(-7, 2), -3);
    EXPECT_EQ(quotient32(7, -2), -3);
    EXPECT_EQ(quotient32(-7, -1), 7);
}

TEST(IntegerWidth, TheSmallestNumberSurvivesADivisionByMinusOne) {
    EXPECT_EQ(quotient32(Smallest, -1), Smallest);
}

TEST(IntegerWidth, DivisorOfZeroIsAnInvalidArgument) {
    try {
        quotient32(1, 0);
        FAIL();
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80070057U);
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
