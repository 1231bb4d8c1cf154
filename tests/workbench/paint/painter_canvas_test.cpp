#include "tests/workbench/paint/sheet.h"

#include "workbench/paint/host_color.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(HostColor, IsRedGreenBlueFromTheHighByteDown) {
    EXPECT_EQ(fromHostColor(0xFF9900), QColor(255, 153, 0));
    EXPECT_EQ(fromHostColor(0x2D5DF1), QColor(45, 93, 241));
    EXPECT_EQ(toHostColor(QColor(45, 93, 241)), 0x2D5DF1U);
}

TEST(HostColor, TheHighestByteIsNotLookedAt) {
    EXPECT_EQ(fromHostColor(0x12FF9900), fromHostColor(0x00FF9900));
    EXPECT_EQ(fromHostColor(0x00000000).alpha(), 255);
}

TEST(PainterCanvas, AStraightLineIsSharpAndOnePixelWide) {
    for (const LineQuality lines : {LineQuality::Pixels, LineQuality::Smooth}) {
        Sheet sheet(20, 20, {.lines = lines});
        sheet->MoveTo(3, 7);
        sheet->LineTo(12, 7);
        EXPECT_EQ(sheet.inked(), QRect(3, 7, 10, 1));
        EXPECT_EQ(sheet.at(3, 7), 0U);
        EXPECT_EQ(sheet.at(12, 7), 0U);
    }
}

TEST(PainterCanvas, ABoxIncludesTheFarEdges) {
    Sheet sheet(20, 20);
    sheet->GetPen()->SetColor(0x00FF00);
    sheet->GetBrush()->SetColor(0xFF9900);
    sheet->Rectangle(4, 5, 14, 11);
    EXPECT_EQ(sheet.inked(), QRect(QPoint(4, 5), QPoint(14, 11)));
    EXPECT_EQ(sheet.at(14, 8), 0x00FF00U);
    EXPECT_EQ(sheet.at(9, 11), 0x00FF00U);
    EXPECT_EQ(sheet.at(13, 10), 0xFF9900U);
}

TEST(PainterCanvas, ABoxMayBeTurnedOver) {
    Sheet upright(30, 30);
    Sheet turned(30, 30);
    upright->Ellipse(5, 8, 25, 20);
    turned->Ellipse(25, 20, 5, 8);
    EXPECT_EQ(upright.finish(), turned.finish());
}

TEST(PainterCanvas, AnEllipseTouchesTheEdgesOfItsBox) {
    Sheet sheet(40, 40);
    sheet->GetBrush()->SetColor(0xFF0000);
    sheet->Ellipse(5, 9, 35, 29);
    EXPECT_EQ(sheet.inked(), QRect(QPoint(5, 9), QPoint(35, 29)));
    EXPECT_EQ(sheet.at(20, 19), 0xFF0000U);
    EXPECT_EQ(sheet.at(6, 10), 0xFFFFFFU);
}

TEST(PainterCanvas, BrushStyle1LeavesTheInsideAlone) {
    Sheet sheet(20, 20);
    sheet->GetBrush()->SetStyle(1);
    sheet->GetBrush()->SetColor(0xFF0000);
    sheet->Rectangle(4, 4, 14, 14);
    EXPECT_EQ(sheet.at(9, 9), 0xFFFFFFU);
    EXPECT_EQ(sheet.at(4, 9), 0U);
}

TEST(PainterCanvas, APolygonClosesItself) {
    Sheet sheet(30, 30);
    sheet->GetBrush()->SetColor(0x0000FF);
    sheet->Polygon({5, 5, 25, 5, 5, 25}, 3);
    EXPECT_EQ(sheet.at(5, 15), 0U);      // the closing edge
    EXPECT_EQ(sheet.at(10, 10), 0xFFU);  // inside
    EXPECT_EQ(sheet.at(25, 25), 0xFFFFFFU);
}

TEST(PainterCanvas, AnArcRunsFromTheFirstRayToTheSecond) {
    // The circle of radius 20 about (30, 30), from the right to the top; the box comes as left,
    // bottom, right, top. Its middle, at 45 degrees, is (30 + 14.1, 30 - 14.1).
    Sheet sheet(60, 60, withPixels());
    sheet->Arc(10, 50, 50, 10, 60, 30, 30, 0);
    EXPECT_EQ(sheet.inked(), QRect(QPoint(30, 10), QPoint(50, 30)));
    EXPECT_EQ(sheet.at(44, 16), 0U);
    EXPECT_EQ(sheet.at(30, 30), 0xFFFFFFU);
}

TEST(PainterCanvas, NothingIsPaintedOutsideTheArea) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(10, 10);
    {
        PainterCanvas canvas(painter, QSize(20, 20));
        canvas.GetBrush()->SetColor(0);
        canvas.Rectangle(-100, -100, 100, 100);
    }
    painter.end();
    EXPECT_EQ(image.pixelColor(9, 20), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(29, 29), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(30, 20), QColor(Qt::white));
}

TEST(PainterCanvas, AtScale2APixelIsFour) {
    Sheet sheet(20, 20, {}, 2);
    sheet->MoveTo(3, 7);
    sheet->LineTo(12, 7);
    EXPECT_EQ(sheet.inked(), QRect(6, 14, 20, 2));
    EXPECT_EQ(sheet.at(6, 15), 0U);
}

TEST(PainterCanvas, ThePenGetsAsWideAsItIsSet) {
    Sheet sheet(20, 20);
    sheet->GetPen()->SetWidth(3);
    sheet->MoveTo(5, 10);
    sheet->LineTo(15, 10);
    EXPECT_EQ(sheet.inked().height(), 3);
}

TEST(PainterCanvas, LeavesThePainterAsItWas) {
    Sheet sheet(20, 20);
    QImage image(8, 8, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    { PainterCanvas(painter, QSize(4, 4)).LineTo(3, 3); }
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_FALSE(painter.hasClipping());
}

TEST(PainterCanvas, OffersItselfAndCountsWhatIsHeld) {
    Sheet sheet(4, 4);
    auto canvas = Host::Ref<Host::IHostCanvas>::share(&*sheet);
    EXPECT_EQ(canvas.offered<Host::IHostObject>().offered<Host::IHostCanvas>(), canvas);
    EXPECT_FALSE(canvas.offered<Host::IHostPen>());
    EXPECT_EQ(sheet->references(), 1);
    canvas = nullptr;
    EXPECT_EQ(sheet->references(), 0);
}

}  // namespace
}  // namespace Rotavue::Workbench
