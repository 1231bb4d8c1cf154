#include "plugin/orbit_graph/orbit_curve.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace Meridax::VisualControls::Rotavue {
namespace {

static_assert(std::is_same_v<std::underlying_type_t<OrbitKind>, std::int32_t>);

TEST(OrbitKind, HasTheNumbersThatChannelsAndCurvesShare) {
    const OrbitKind inOrder[] = {OrbitKind::Raw,         OrbitKind::Average,   OrbitKind::Harmonic,
                                 OrbitKind::ShaftCenter, OrbitKind::Reference, OrbitKind::SubSync};
    for (std::int32_t number = 0; number < 6; ++number)
        EXPECT_EQ(static_cast<std::int32_t>(inOrder[number]), number);
}

TEST(ChannelInfo, StartsWhiteAndNameless) {
    const ChannelInfo info;
    EXPECT_EQ(info.color, 0xFFFFFFU);
    EXPECT_EQ(info.axisStart, 0.0);
    EXPECT_EQ(info.axisStep, 100.0);
    EXPECT_EQ(info.reserved, (std::array<double, 2>{0.0, 1.0}));
    EXPECT_EQ(info.displayValue, 0.0);
    EXPECT_EQ(info.unit, L"");
    EXPECT_EQ(info.name, L"");
}

TEST(OrbitCurve, StartsRawAndEmpty) {
    const OrbitCurve curve;
    EXPECT_EQ(curve.kind, OrbitKind::Raw);
    EXPECT_TRUE(curve.points.empty());
    EXPECT_TRUE(curve.samples.empty());
    EXPECT_EQ(curve.info, ChannelInfo{});
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
