#include "plugin/orbit_graph/canvas_integer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr std::int32_t Smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

TEST(CanvasInteger, TruncatesTowardZero) {
    EXPECT_EQ(canvasInteger(2.9), 2);
    EXPECT_EQ(canvasInteger(-2.9), -2);
    EXPECT_EQ(canvasInteger(-0.5), 0);
}

TEST(CanvasInteger, ReachesBothEndsOfItsRange) {
    EXPECT_EQ(canvasInteger(2147483647.0), Largest);
    EXPECT_EQ(canvasInteger(2147483647.9), Largest);
    EXPECT_EQ(canvasInteger(-2147483648.0), Smallest);
    EXPECT_EQ(canvasInteger(-2147483648.9), Smallest);
}

TEST(CanvasInteger, GivesTheSmallestForWhatHasNoInteger) {
    for (const double value : {2147483648.0, -2147483649.0, 1e300, -1e300, HUGE_VAL, -HUGE_VAL,
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(canvasInteger(value), Smallest) << value;
    }
}

static_assert(canvasInteger(3.7) == 3, "free of undefined behaviour: the compiler can tell");
static_assert(canvasInteger(1e10) == Smallest);

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
