#include "plugin/orbit_graph/view_transform.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(ViewTransform, AtRestChangesNothing) {
    const ViewTransform view{.centre = {150, 100}};
    EXPECT_EQ(view.apply(Point{12.5, 7}), (Point{12.5, 7}));
}

TEST(ViewTransform, PansBeforeItZoomsAboutTheCentre) {
    const ViewTransform view{10, -20, 2, 4, {100, 100}};
    // x: (130 + 10 - 100) * 2 + 100; y: (130 - 20 - 100) * 4 + 100.
    EXPECT_EQ(view.apply(Point{130, 130}), (Point{180, 140}));
}

TEST(ViewTransform, TakesBothCornersAndBothEnds) {
    const ViewTransform view{0, 0, 2, 2, {100, 100}};
    EXPECT_EQ(view.apply(Rectangle{90, 95, 110, 105}), (Rectangle{80, 90, 120, 110}));
    EXPECT_EQ(view.apply(Segment{{90, 95}, {110, 105}}), (Segment{{80, 90}, {120, 110}}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
