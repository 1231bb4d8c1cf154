#include "workbench/analysis/short_text.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(ShortText, ShowsSignificantDigitsWithoutTrailingZeros) {
    EXPECT_EQ(shortText(12.0), "12");
    EXPECT_EQ(shortText(12.3456), "12.35");
    EXPECT_EQ(shortText(-0.5), "-0.5");
    EXPECT_EQ(shortText(1234.5678, 6), "1234.57");
    EXPECT_EQ(shortText(1e300), "1e+300");
    EXPECT_EQ(shortText(2e-7), "2e-07");
}

TEST(ShortText, NeverCutsDigitsBeforeThePoint) {
    EXPECT_EQ(shortText(12345.6), "12346");
    EXPECT_EQ(shortText(100.0, 2), "100");
    EXPECT_EQ(shortText(99.96, 2), "100");
    EXPECT_EQ(shortText(-1e6, 2), "-1000000");
}

}  // namespace
}  // namespace Rotavue::Workbench
