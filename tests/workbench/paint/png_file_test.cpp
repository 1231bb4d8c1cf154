#include "workbench/paint/png_file.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace Rotavue::Workbench {
namespace {

QImage readBack(const QByteArray& file) {
    return QImage::fromData(file, "png").convertToFormat(QImage::Format_RGB32);
}

TEST(PngFile, HoldsEveryPixel) {
    // Odd sizes and colours that nothing can be guessed of.
    std::mt19937 random(1);
    for (const QSize size : {QSize(1, 1), QSize(7, 3), QSize(641, 2), QSize(3, 997)}) {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, 0xFF000000U | (random() & 0xFFFFFFU));
        EXPECT_EQ(readBack(toPngFile(image)), image) << size.width() << " x " << size.height();
    }
}

TEST(PngFile, KeepsRedGreenAndBlueApart) {
    QImage image(3, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, 0xFFFF0000U);
    image.setPixel(1, 0, 0xFF00FF00U);
    image.setPixel(2, 0, 0xFF0000FFU);
    const QImage read = readBack(toPngFile(image));
    EXPECT_EQ(read.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(read.pixelColor(1, 0), QColor(Qt::green));
    EXPECT_EQ(read.pixelColor(2, 0), QColor(Qt::blue));
}

TEST(PngFile, KnowsItsSizeOnPaper) {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(1000);
    const QImage read = readBack(toPngFile(image));
    EXPECT_EQ(read.dotsPerMeterX(), 3780);
    EXPECT_EQ(read.dotsPerMeterY(), 1000);
}

TEST(PngFile, TellsHowFarItIsAndEndsAtTheNextWordWhenItIsCancelled) {
    QImage image(10, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    std::vector<double> parts;
    const auto makeWhile = [&](std::size_t words) {
        parts.clear();
        toPngFile(image, ReadingProgress([&](double part) {
                      parts.push_back(part);
                      return parts.size() < words;
                  }));
    };
    makeWhile(100);
    // After every 64 of 300 rows.
    EXPECT_EQ(parts, (std::vector<double>{0, 64 / 300.0, 128 / 300.0, 192 / 300.0, 256 / 300.0}));
    EXPECT_THROW(makeWhile(3), ReadingCancelled);
    EXPECT_EQ(parts.size(), 3U);
}

TEST(PngFile, OfAnEvenGroundIsSmall) {
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    // 1.44 MB of colours; deflate packs equal bytes to a thousandth at best.
    EXPECT_LT(toPngFile(image).size(), 20000);
}

}  // namespace
}  // namespace Rotavue::Workbench
