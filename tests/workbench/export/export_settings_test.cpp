#include "workbench/export/export_settings.h"

#include "tests/workbench/export/widget_test.h"
#include "workbench/paint/painting_studio.h"

#include <QImage>

#include <cstdio>

namespace Rotavue::Workbench {

namespace {

constexpr ExportSettings A4{
    .format = PictureFormat::Pdf, .unit = SizeUnit::Millimetres, .width = 210, .height = 297};

class ExportSettingsTest : public WidgetTest {
protected:
    static std::string painted(const ExportSettings& settings) {
        PaintingStudio studio;
        PictureOrder order = orderOf(settings);
        order.colors.background = 0;
        return studio.open(order, {})->finish();
    }
};

TEST_F(ExportSettingsTest, PngFileHasThePixelsAndDotsThatWereAskedFor) {
    struct Case {
        ExportSettings settings;
        int width;
        int height;
        int dotsPerMetre;
    };
    // 160 mm are 6.2992 inches: 1889.8 pixels at 300 of an inch, which are 11811.0 of a metre.
    const Case cases[] = {
        {{.unit = SizeUnit::Millimetres, .width = 160, .height = 120, .dotsPerInch = 300},
         1890,
         1417,
         11811},
        {{.width = 1201, .height = 899, .dotsPerInch = 144}, 1201, 899, 5669},
        {{.width = 640, .height = 480}, 640, 480, 3780},
    };
    for (const Case& one : cases) {
        const QImage image =
            QImage::fromData(QByteArray::fromStdString(painted(one.settings)), "png");
        EXPECT_EQ(image.width(), one.width);
        EXPECT_EQ(image.height(), one.height);
        EXPECT_EQ(image.dotsPerMeterX(), one.dotsPerMetre);
        EXPECT_EQ(image.dotsPerMeterY(), one.dotsPerMetre);
        // The pixels beyond the last whole one of the layout have the background, too.
        EXPECT_EQ(image.pixelColor(one.width - 1, one.height - 1), QColor(Qt::black));
    }
}

TEST_F(ExportSettingsTest, PdfPageIsThatOfThePaperToAPoint) {
    // 210 mm are 595.3 and 297 mm 841.9 of them, and a file tells whole ones.
    const std::string pdf = painted(A4);
    double width = 0.0;
    double height = 0.0;
    const std::string box = pdf.substr(pdf.find("/MediaBox"));
    ASSERT_EQ(std::sscanf(box.c_str(), "/MediaBox [0 0 %lf %lf]", &width, &height), 2);
    EXPECT_NEAR(width, 595.3, 1.0);
    EXPECT_NEAR(height, 841.9, 1.0);
}

TEST_F(ExportSettingsTest, SvgTellsItsSizeInMillimetres) {
    ExportSettings settings = A4;
    settings.format = PictureFormat::Svg;
    // 794 / 96 * 25.4 = 210.079
    EXPECT_NE(painted(settings).find("width=\"210.079mm\" height=\"297.127mm\""),
              std::string::npos);
}

TEST_F(ExportSettingsTest, MoreDotsLeaveTheLayoutAsItIs) {
    ExportSettings settings{.unit = SizeUnit::Millimetres, .width = 160, .height = 120};
    for (const int dots : {96, 150, 300, 600}) {
        settings.dotsPerInch = dots;
        EXPECT_NEAR(orderOf(settings).width, 604.7, 1.0) << dots;
        EXPECT_NEAR(orderOf(settings).height, 453.5, 1.0) << dots;
    }
}

TEST_F(ExportSettingsTest, SizesThatCannotBeMadeOrReadAreRefused) {
    EXPECT_TRUE(faultOf({}).isEmpty());
    EXPECT_TRUE(faultOf(A4).isEmpty());
    EXPECT_EQ(faultOf({.width = 8193}), "The picture would be larger than 8192 pixels.");
    // 1200 pixels at 1200 of an inch are one inch wide.
    EXPECT_EQ(faultOf({.dotsPerInch = 1200}),
              "The picture would be smaller than 53 mm: nothing on it could be read.");
}

TEST_F(ExportSettingsTest, ArePutAwayAndComeBack) {
    const ExportSettings settings{.format = PictureFormat::Svg,
                                  .unit = SizeUnit::Millimetres,
                                  .width = 160.5,
                                  .height = 100,
                                  .dotsPerInch = 300,
                                  .header = false,
                                  .sameScale = true};
    const auto memory = this->memory();
    QSettings& place = *memory;
    store(settings, place);
    EXPECT_EQ(stored(place, {}), settings);
}

TEST_F(ExportSettingsTest, NonsenseThatWasPutAwayIsNotTaken) {
    const auto memory = this->memory();
    QSettings& place = *memory;
    EXPECT_EQ(stored(place, A4), A4);
    for (const char* width : {"nan", "-5", "1e300", "words"}) {
        store(A4, place);
        place.setValue("width", width);
        EXPECT_EQ(stored(place, A4), A4) << width;
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
