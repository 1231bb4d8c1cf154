#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "workbench/paint/header_strip.h"
#include "workbench/paint/painting_studio.h"

#include <QImage>

#include <gtest/gtest.h>

#include <stdexcept>

namespace Rotavue::Workbench {

namespace {

const PictureHeader Header{"Rotor kit", {"3000 rpm"}};

QImage imageOf(OpenPicture& picture) {
    return QImage::fromData(QByteArray::fromStdString(picture.finish()), "png");
}

TEST(PictureStudio, AStripThatFitsIntoTheMarginTakesNothing) {
    PaintingStudio studio;
    const PictureOrder order{.width = 640, .height = 480};
    EXPECT_EQ(studio.areaOf(order, {}).height, 480);
    EXPECT_EQ(studio.areaOf(order, Header).height, 480);
}

TEST(PictureStudio, AHigherStripMovesTheAreaDown) {
    PaintingStudio studio;
    const PictureOrder order{.width = 400, .height = 400};
    PictureHeader header{"Rotor kit", std::vector<std::string>(30, "a fact of some length")};
    const PictureArea area = studio.areaOf(order, header);
    ASSERT_LT(area.height, 350);
    const auto picture = studio.open(order, header);
    picture->canvas()->GetBrush()->SetColor(0x00FF00);
    picture->canvas()->GetPen()->SetColor(0x00FF00);
    picture->canvas()->Rectangle(-50, -50, 500, 500);
    const QImage image = imageOf(*picture);
    EXPECT_NE(image.pixelColor(399, 400 - area.height - 1), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(399, 400 - area.height), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(0, 399), QColor(0, 255, 0));
}

TEST(PictureStudio, TheStripLeavesTheBadgesRoom) {
    // The plot begins 60 pixels below the area's edge, its badges 0.7 text heights before that.
    PaintingStudio studio;
    for (const int height : {300, 600, 1200}) {
        const PictureOrder order{.width = 4 * height / 3, .height = height};
        const PictureHeader header{"Kit", {"a", "b"}};
        const PictureArea area = studio.areaOf(order, header);
        const int strip = HeaderStrip(header, order, area.textHeight).height();
        EXPECT_LE(strip, height - area.height + 60 - 0.7 * area.textHeight);
    }
}

TEST(PictureStudio, TheStripStaysOffAReadout) {
    // The plug-in writes it half a text height below the area's edge.
    PaintingStudio studio;
    const PictureOrder order{.width = 640, .height = 480, .readout = true};
    const PictureArea area = studio.areaOf(order, Header);
    EXPECT_EQ(area.height, 480 - HeaderStrip(Header, order, area.textHeight).height());
    EXPECT_EQ(studio.areaOf(order, {}).height, 480);
}

TEST(PictureStudio, TheBackgroundIsTheHosts) {
    PaintingStudio studio;
    PictureOrder order{.width = 60, .height = 50};
    order.colors.background = 0x102030;
    const auto picture = studio.open(order, {});
    EXPECT_EQ(imageOf(*picture).pixelColor(59, 49), QColor(0x10, 0x20, 0x30));
}

struct TextCase {
    int width;
    int height;
};

class TextHeight : public ::testing::TestWithParam<TextCase> {};

TEST_P(TextHeight, IsReadableAndFitsBesideThePlot) {
    PaintingStudio studio;
    const auto [width, height] = GetParam();
    const PictureOrder order{.width = width, .height = height};
    const PictureArea area = studio.areaOf(order, {});
    EXPECT_GE(area.textHeight, 12);
    const auto picture = studio.open(order, {});
    const int line = picture->canvas()->TextHeight(L"Aj");
    const int beside = (width - std::min(width, height)) / 2 + 60;
    EXPECT_LE(3 * line, beside);
    EXPECT_LE(2 * line, (height - std::min(width, height)) / 2 + 60);
}

INSTANTIATE_TEST_SUITE_P(PictureStudio, TextHeight,
                         ::testing::Values(TextCase{300, 300}, TextCase{400, 300},
                                           TextCase{800, 600}, TextCase{1200, 1200},
                                           TextCase{1600, 1200}, TextCase{3000, 1000}));

TEST(PictureStudio, ATextHeightThatIsAskedForIsTaken) {
    PaintingStudio studio;
    EXPECT_EQ(studio.areaOf({.textHeight = 9}, {}).textHeight, 9);
}

TEST(PictureStudio, APictureWithoutRoomIsRefused) {
    PaintingStudio studio;
    EXPECT_THROW(studio.open({.width = 100, .height = 10}, Header), std::runtime_error);
    EXPECT_THROW(studio.open({.width = 100, .height = 0}, {}), std::runtime_error);
    EXPECT_THROW(studio.open({.width = 100'000, .height = 100}, {}), std::runtime_error);
}

}  // namespace
}  // namespace Rotavue::Workbench
