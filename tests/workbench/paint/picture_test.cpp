#include "workbench/paint/picture_file.h"

#include "workbench/paint/offscreen_gui.h"
#include "workbench/paint/painter_canvas.h"

#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

namespace Rotavue::Workbench {
namespace {

void paintSomething(QPainter& painter, PictureFormat format) {
    PainterCanvas canvas(painter, QSize(100, 80), {.text = textFormOf(format)});
    canvas.GetPen()->SetColor(0xFF0000);
    canvas.MoveTo(10, 10);
    canvas.LineTo(90, 70);
    canvas.Ellipse(20, 20, 60, 60);
    canvas.TextOut(5, 50, L"Orbit");
    canvas.GetFont()->SetOrientation(900);
    canvas.TextOut(70, 60, L"Shaft");
}

QByteArray pictureOf(PictureFormat format, double scale = 1.0) {
    const PictureShape shape{
        .width = 100, .height = 80, .scale = scale, .title = "Kit <1> & \"2\""};
    const auto file = PictureFile::begin(format, shape);
    paintSomething(file->painter(), format);
    return file->finish();
}

/// How often each element occurs; empty where the document is not well-formed.
std::map<QString, int> elementsOf(const QByteArray& svg) {
    std::map<QString, int> elements;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            ++elements[reader.name().toString()];
    }
    return reader.hasError() ? std::map<QString, int>{} : elements;
}

TEST(Picture, APngHasThePixelsAskedFor) {
    const QImage image = QImage::fromData(pictureOf(PictureFormat::Png), "png");
    EXPECT_EQ(image.size(), QSize(100, 80));
    EXPECT_EQ(image.pixelColor(99, 0), QColor(Qt::white));
    EXPECT_EQ(image.dotsPerMeterX(), 3780);  // 96 / 0.0254
}

TEST(Picture, AtScale2APngHasTwiceThePixelsAtTheSameSizeOnPaper) {
    const QImage image = QImage::fromData(pictureOf(PictureFormat::Png, 2), "png");
    EXPECT_EQ(image.size(), QSize(200, 160));
    EXPECT_EQ(image.dotsPerMeterX(), 7559);  // 192 / 0.0254
    EXPECT_EQ(image.pixelColor(20, 20).red(), 255);
    EXPECT_LT(image.pixelColor(20, 20).green(), 128);
}

TEST(Picture, AnSvgIsWellFormedAndHoldsShapes) {
    const QByteArray svg = pictureOf(PictureFormat::Svg);
    auto elements = elementsOf(svg);
    EXPECT_EQ(elements["svg"], 1);
    EXPECT_GE(elements["polyline"], 1);
    EXPECT_GE(elements["path"], 2);
    EXPECT_EQ(elements["image"], 0);
    EXPECT_EQ(elements["text"], 0);
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 100 80\""));
    EXPECT_TRUE(svg.contains("Kit &lt;1&gt; &amp; "));
}

TEST(Picture, APdfHoldsShapesAndLettersOnAPageOfItsSize) {
    const QByteArray pdf = pictureOf(PictureFormat::Pdf);
    EXPECT_TRUE(pdf.startsWith("%PDF-1."));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pdf.contains("DejaVuSans"));
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
    // 100 and 80 pixels of 1/96 inch are 75 and 60 points.
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 75.000000 60.000000]"));
}

TEST(Picture, TheSamePaintingGivesTheSameBytes) {
    for (const PictureFormat format :
         {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        EXPECT_EQ(pictureOf(format), pictureOf(format));
    }
}

TEST(Picture, NoFileHoldsTheDate) {
    EXPECT_TRUE(pictureOf(PictureFormat::Pdf).contains("(D:20000101000000"));
    EXPECT_FALSE(pictureOf(PictureFormat::Png).contains("tIME"));
}

TEST(Picture, ASizeBeyondTheLargestIsRefused) {
    for (const PictureShape& shape :
         {PictureShape{.width = 0}, PictureShape{.height = -5}, PictureShape{.width = 8193},
          PictureShape{.width = 4097, .scale = 2}, PictureShape{.fileWidth = 8193},
          PictureShape{.scale = 0}}) {
        EXPECT_THROW(PictureFile::begin(PictureFormat::Png, shape), PaintError);
    }
    EXPECT_NO_THROW(PictureFile::begin(PictureFormat::Png, {.width = 8192, .height = 1}));
}

TEST(Picture, MayBeGivenUp) {
    for (const PictureFormat format :
         {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        const auto file = PictureFile::begin(format, {.width = 10, .height = 10});
        file->painter().drawLine(0, 0, 9, 9);
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
