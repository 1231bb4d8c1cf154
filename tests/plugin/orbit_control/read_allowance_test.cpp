#include "plugin/orbit_control/read_allowance.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(ReadAllowance, HoldsTheLongestPanelTimeAtOneMegahertz) {
    EXPECT_EQ(ReadAllowance::Places, 10 * 1'000'000);
}

TEST(ReadAllowance, GivesWhatIsWantedWhileThereIsEnough) {
    ReadAllowance allowance;
    EXPECT_EQ(allowance.take(4'000'000), 4'000'000);
    EXPECT_EQ(allowance.take(0), 0);
    EXPECT_EQ(allowance.take(-5), 0);
    EXPECT_EQ(allowance.take(std::numeric_limits<std::int64_t>::max()), 6'000'000);
    EXPECT_EQ(allowance.take(1), 0);
}

TEST(ReadAllowance, SinglePlacesEndWithTheLastOne) {
    ReadAllowance allowance;
    allowance.take(ReadAllowance::Places - 2);
    EXPECT_TRUE(allowance.take());
    EXPECT_TRUE(allowance.take());
    EXPECT_FALSE(allowance.take());
    EXPECT_FALSE(allowance.take());
}

TEST(ReadAllowance, IsWholeAgainWhenRenewed) {
    ReadAllowance allowance;
    allowance.take(ReadAllowance::Places);
    allowance.renew();
    EXPECT_EQ(allowance.take(ReadAllowance::Places + 1), ReadAllowance::Places);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
