#include "workbench/paint/header_strip.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

constexpr int TextHeight = 14;

PictureHeader header() {
    return {"Rotor kit", {"direct", "X 45\u00b0", "Y 315\u00b0", "3000 rpm", "20 \u00b5m/div"}};
}

int heightFor(const PictureHeader& content, int width, int height = 600) {
    return HeaderStrip(content, {.width = width, .height = height}, TextHeight).height();
}

TEST(HeaderStrip, TakesNoRoomWhenThereIsNothingToSay) {
    EXPECT_EQ(heightFor({}, 800), 0);
}

TEST(HeaderStrip, FactsFlowOverAsManyLinesAsTheyNeed) {
    const int line = TextFace(TextHeight).lineHeight();
    const int wide = heightFor(header(), 800);
    EXPECT_EQ(heightFor(header(), 10'000), wide);
    // Five facts, none beside another: four lines more.
    EXPECT_EQ(heightFor(header(), 90), wide + 4 * line);
}

TEST(HeaderStrip, InALowPictureTheTitleSharesItsLine) {
    const int line = TextFace(TextHeight).lineHeight();
    EXPECT_EQ(heightFor(header(), 800, 300), heightFor(header(), 800, 600) - line);
}

TEST(HeaderStrip, NothingStandsOutsideTheStrip) {
    for (const int width : {60, 200, 800}) {
        const PictureOrder order{.width = width, .height = 600};
        const HeaderStrip strip(header(), order, TextHeight);
        QImage image(width + 50, 600, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        strip.drawOn(painter, order.colors, TextForm::Letters);
        painter.end();
        for (int y = 0; y < 600; ++y) {
            for (int x = 0; x < width + 50; ++x) {
                if (y < strip.height() && x < width) continue;
                ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::white)) << x << ", " << y;
            }
        }
    }
}

TEST(HeaderStrip, TheTitleHasTheColourOfText) {
    const PictureOrder order{.width = 800, .height = 600, .colors = {.text = 0xFF0000}};
    QImage image(800, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    HeaderStrip({"IIII", {}}, order, TextHeight).drawOn(painter, order.colors, TextForm::Letters);
    painter.end();
    int red = 0;
    for (int x = 0; x < 100; ++x)
        red += image.pixelColor(x, 15).green() < 200 ? 1 : 0;
    EXPECT_GE(red, 4);
}

}  // namespace
}  // namespace Rotavue::Workbench
