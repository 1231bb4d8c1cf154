#include <gtest/gtest.h>

#include "workbench/recording/degrees.h"
#include "workbench/recording/recording_options.h"

namespace Rotavue::Workbench {
namespace {

TEST(ProbeAngle, CountsClockwiseFromTheTop) {
    EXPECT_EQ(parseProbeAngle("45 R"), 45.0);
    EXPECT_EQ(parseProbeAngle("45 L"), 315.0);
    EXPECT_EQ(parseProbeAngle("0"), 0.0);
    EXPECT_EQ(parseProbeAngle("-45"), 315.0);
    EXPECT_EQ(parseProbeAngle("360"), 0.0);
    EXPECT_EQ(parseProbeAngle("180L"), 180.0);
    EXPECT_EQ(parseProbeAngle(" 12.5r "), 12.5);
    EXPECT_EQ(parseProbeAngle("0 l"), 0.0);
}

TEST(ProbeAngle, RefusesEveryOtherText) {
    for (const char* text : {"", "R", "45,5", "45 X", "200 L", "-5 R", "361", "-361", "nan", "inf",
                             "45 R L", "1e999", "4 5"}) {
        EXPECT_EQ(parseProbeAngle(text), std::nullopt) << text;
    }
}

TEST(WrappedDegrees, AreFromZeroToBelowAFullTurn) {
    EXPECT_EQ(wrappedDegrees(725.0), 5.0);
    EXPECT_EQ(wrappedDegrees(-90.0), 270.0);
    EXPECT_EQ(wrappedDegrees(-360.0), 0.0);
    EXPECT_FALSE(std::signbit(wrappedDegrees(-360.0)));
    // 360 - 1e-20 is 360 in double precision.
    EXPECT_EQ(wrappedDegrees(-1e-20), 0.0);
}

}  // namespace
}  // namespace Rotavue::Workbench
