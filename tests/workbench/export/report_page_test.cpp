#include "workbench/export/report_page.h"

#include "plugin/framework/host/drawing/host_brush.h"
#include "tests/workbench/export/widget_test.h"

#include <QImage>

#include <stdexcept>

namespace Rotavue::Workbench {

namespace {

constexpr PictureOrder A4{.format = PictureFormat::Png, .width = 794, .height = 1123};

class ReportPageTest : public WidgetTest {
protected:
    /// An orbit that fills its area and notes it.
    ReportOrbit orbit(std::uint32_t color) {
        return {[](const PictureArea&) {
                    return PictureHeader{"Bearing", {"direct"}};
                },
                [this, color](const Meridax::Host::Ref<Meridax::Host::IHostCanvas>& canvas,
                              const PictureArea& area) {
                    areas.push_back(area);
                    canvas->GetBrush()->SetColor(color);
                    canvas->Rectangle(0, 0, area.width - 1, area.height - 1);
                }};
    }

    static QImage imageOf(const ReportContent& content, const PictureOrder& order = A4) {
        return QImage::fromData(QByteArray::fromStdString(paintReport(drawReport(content, order))),
                                "png");
    }

    static int count(const QImage& image, QColor color) {
        int found = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                found += image.pixelColor(x, y) == color ? 1 : 0;
        return found;
    }

    std::vector<PictureArea> areas;
};

TEST_F(ReportPageTest, EveryOrbitIsDrawnOnceInAnAreaOfTheSameSize) {
    const ReportContent content{
        .title = "Kit", .facts = {}, .orbits = {orbit(0xFF0000), orbit(0x0000FF)}};
    const QImage image = imageOf(content);
    EXPECT_EQ(image.size(), QSize(794, 1123));
    ASSERT_EQ(areas.size(), 2U);
    EXPECT_EQ(areas[0].width, areas[1].width);
    EXPECT_EQ(areas[0].height, areas[1].height);
    // All of both areas but their outlines is there: none hides the other or leaves the page.
    const int inside = (areas[0].width - 4) * (areas[0].height - 4);
    EXPECT_GE(count(image, QColor(255, 0, 0)), inside * 9 / 10);
    EXPECT_GE(count(image, QColor(0, 0, 255)), inside * 9 / 10);
}

TEST_F(ReportPageTest, NumbersAndNotesTakeRoomFromTheOrbits) {
    ReportContent content{.title = "Kit", .facts = {}, .orbits = {orbit(0xFF0000)}};
    imageOf(content);
    content.numbers = {{"probe", "pp"}, {{"X", "12.3"}, {"Y", "4.5"}}};
    imageOf(content);
    content.notes = {"a note"};
    imageOf(content);
    ASSERT_EQ(areas.size(), 3U);
    EXPECT_LT(areas[1].height, areas[0].height);
    EXPECT_LT(areas[2].height, areas[1].height);
}

TEST_F(ReportPageTest, IsDarkOnLightToTheEdges) {
    const QImage image = imageOf({.title = "Kit", .facts = {"a fact"}, .orbits = {}});
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(793, 1122), QColor(Qt::white));
    EXPECT_GT(count(image, QColor(Qt::black)), 10);
}

TEST_F(ReportPageTest, LongTextsStayOnThePage) {
    const std::string longText(3000, 'm');
    const ReportContent content{.title = longText,
                                .facts = {longText},
                                .orbits = {},
                                .numbers = {{longText, longText}, {{longText, longText}}},
                                .notes = std::vector<std::string>(500, longText)};
    const QImage image = imageOf(content);
    for (int y = 0; y < image.height(); ++y) {
        ASSERT_EQ(image.pixelColor(40, y), QColor(Qt::white)) << y;
        ASSERT_EQ(image.pixelColor(794 - 40, y), QColor(Qt::white)) << y;
    }
}

TEST_F(ReportPageTest, PageThatHasNoRoomForItsOrbitsIsRefused) {
    const ReportContent content{
        .title = "Kit", .facts = {}, .orbits = std::vector<ReportOrbit>(100, orbit(0))};
    EXPECT_THROW(drawReport(content, A4), std::runtime_error);
    EXPECT_TRUE(areas.empty());
}

TEST_F(ReportPageTest, IsTheSameFileEveryTime) {
    for (const PictureFormat format :
         {PictureFormat::Png, PictureFormat::Svg, PictureFormat::Pdf}) {
        PictureOrder order = A4;
        order.format = format;
        const ReportContent content{.title = "Kit", .facts = {}, .orbits = {orbit(0xFF0000)}};
        EXPECT_EQ(paintReport(drawReport(content, order)), paintReport(drawReport(content, order)));
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
