#include "workbench/window/docks/plot_range.h"

#include "workbench/window/docks/plot_ticks.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(PlotRange, ZoomLeavesTheFixedPlaceWhereItIs) {
    // 4 lies at 30 % of 1 to 11; halved, 30 % of 5 are 1.5 before it.
    const PlotRange half = zoomed({1.0, 11.0}, 4.0, 0.5);
    EXPECT_DOUBLE_EQ(half.from, 2.5);
    EXPECT_DOUBLE_EQ(half.to, 7.5);
    EXPECT_EQ(zoomed(half, 4.0, 2.0), (PlotRange{1.0, 11.0}));
}

TEST(PlotRange, IsHeldWithinItsBounds) {
    const PlotRange bounds{0.0, 10.0};
    EXPECT_EQ(within({8.0, 12.0}, bounds, 1.0), (PlotRange{6.0, 10.0}));
    EXPECT_EQ(within({-3.0, 1.0}, bounds, 1.0), (PlotRange{0.0, 4.0}));
    EXPECT_EQ(within({-5.0, 50.0}, bounds, 1.0), bounds);
    EXPECT_EQ(within({4.0, 4.0}, bounds, 1.0), (PlotRange{3.5, 4.5}));
    EXPECT_EQ(within({0.0, 1.0}, {0.0, 0.25}, 1.0), (PlotRange{0.0, 0.25}));
}

TEST(PlotRange, TurnsWholePages) {
    EXPECT_EQ(turnedTo({2.0, 4.0}, 3.0), (PlotRange{2.0, 4.0}));
    EXPECT_EQ(turnedTo({2.0, 4.0}, 7.0), (PlotRange{6.0, 8.0}));
    EXPECT_EQ(turnedTo({2.0, 4.0}, 0.5), (PlotRange{0.0, 2.0}));
}

TEST(PlotRange, HasALengthAlsoForOneValue) {
    EXPECT_EQ(withRoom({0.0, 0.0}), (PlotRange{-1.0, 1.0}));
    EXPECT_LT(withRoom({5.0, 5.0}).from, 5.0);
    EXPECT_EQ(withRoom({0.0, 100.0}), (PlotRange{-6.0, 106.0}));
}

TEST(PlotTicks, AreRoundAndHaveTheDigitsThatTellThemApart) {
    const struct {
        PlotRange range;
        int most;
        std::vector<QString> texts;
    } cases[] = {
        {{-1.0, 1.0}, 5, {"-1.0", "-0.5", "0.0", "0.5", "1.0"}},
        {{0.0, 60.0}, 6, {"0", "10", "20", "30", "40", "50", "60"}},
        {{0.012, 0.019}, 4, {"0.012", "0.014", "0.016", "0.018"}},
        {{-45.0, 45.0}, 3, {"0"}},  // 50 apart
    };
    for (const auto& c : cases) {
        std::vector<QString> texts;
        for (const PlotTick& tick : plotTicks(c.range, c.most))
            texts.push_back(tick.text);
        EXPECT_EQ(texts, c.texts);
    }
}

TEST(PlotTicks, ValuesHaveTwoAlsoWhereThereIsHardlyRoom) {
    const struct {
        PlotRange range;
        int most;
        std::vector<QString> texts;
    } cases[] = {
        {{-45.0, 45.0}, 1, {"-40", "-20", "0", "20", "40"}},  // 50 apart: 0 alone
        {{-10.25, -9.35}, 1, {"-10.0", "-9.5"}},              // 1 apart: -10 alone; 0.9 / 2, so 0.5
        {{0.0, 60.0}, 6, {"0", "10", "20", "30", "40", "50", "60"}},
        {{0.1, 0.3}, 1, {"0.1", "0.2", "0.3"}},  // 0.2 apart: 0.2 alone; 0.2 / 2
    };
    for (const auto& c : cases) {
        std::vector<QString> texts;
        for (const PlotTick& tick : valueTicks(c.range, c.most))
            texts.push_back(tick.text);
        EXPECT_EQ(texts, c.texts);
    }
    EXPECT_TRUE(valueTicks({1.0, 1.0}, 3).empty());
}

TEST(PlotTicks, BothEndsStayAndWhatIsClearOfThem) {
    const auto values = [](double distance) {
        std::vector<double> kept;
        for (const PlotTick& tick : apart(plotTicks({0.0, 50.0}, 5), distance))
            kept.push_back(tick.value);
        return kept;
    };
    EXPECT_EQ(values(10.0), (std::vector{0.0, 10.0, 20.0, 30.0, 40.0, 50.0}));
    EXPECT_EQ(values(15.0), (std::vector{0.0, 20.0, 50.0}));  // 40 is 10 from the last one
    EXPECT_EQ(values(60.0), (std::vector{0.0, 50.0}));
    EXPECT_TRUE(apart({}, 1.0).empty());
}

TEST(PlotTicks, AreNoneWhereThereIsNoLength) {
    EXPECT_TRUE(plotTicks({1.0, 1.0}, 5).empty());
    EXPECT_TRUE(plotTicks({0.0, 1.0}, 0).empty());
    EXPECT_TRUE(plotTicks({0.0, HUGE_VAL}, 5).empty());
}

}  // namespace
}  // namespace Rotavue::Workbench
