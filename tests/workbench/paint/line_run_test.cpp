#include "tests/workbench/paint/sheet.h"

#include <gtest/gtest.h>

#include <random>

namespace Rotavue::Workbench {
namespace {

constexpr int Side = 200;
constexpr std::uint32_t Blue = 0x2D5DF1;

struct Step {
    bool draws;
    QPoint to;
};

std::vector<Step> randomWalk(unsigned seed, int count, int reach) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> place(-reach, Side + reach);
    std::bernoulli_distribution draws(0.9);
    std::vector<Step> steps;
    for (int i = 0; i < count; ++i)
        steps.push_back({draws(random), {place(random), place(random)}});
    return steps;
}

QImage gathered(const std::vector<Step>& steps) {
    Sheet sheet(Side, Side, withPixels());
    sheet->GetPen()->SetColor(Blue);
    for (const Step& step : steps) {
        step.draws ? sheet->LineTo(step.to.x(), step.to.y())
                   : sheet->MoveTo(step.to.x(), step.to.y());
    }
    return sheet.finish();
}

QImage oneByOne(const std::vector<Step>& steps) {
    QImage image(Side, Side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setPen(QPen(QColor(0x2D, 0x5D, 0xF1), 1.0, Qt::SolidLine, Qt::SquareCap));
    painter.setClipRect(0, 0, Side, Side);
    QPoint position;
    for (const Step& step : steps) {
        if (step.draws) painter.drawLine(position, step.to);
        position = step.to;
    }
    painter.end();
    return image;
}

TEST(LineRun, GatheredLinesAreThePixelsOfSingleOnes) {
    for (const int reach : {0, 5, 500}) {
        for (unsigned seed = 1; seed <= 20; ++seed) {
            const std::vector<Step> steps = randomWalk(seed, 300, reach);
            ASSERT_EQ(gathered(steps), oneByOne(steps)) << "seed " << seed << ", reach " << reach;
        }
    }
}

TEST(LineRun, ATraceLongerThanOneRunHasNoHole) {
    // 20,000 short steps along the diagonal and back: more than is gathered at a time.
    std::vector<Step> steps;
    for (int i = 0; i < 20'000; ++i) {
        const int place = i % (2 * Side);
        const int x = place < Side ? place : 2 * Side - 1 - place;
        steps.push_back({true, {x, x}});
    }
    EXPECT_EQ(gathered(steps), oneByOne(steps));
}

TEST(LineRun, AChangeOfPenLeavesEarlierLinesAsTheyWere) {
    Sheet sheet(20, 20, withPixels());
    sheet->GetPen()->SetColor(0xFF0000);
    sheet->MoveTo(0, 5);
    sheet->LineTo(9, 5);
    sheet->GetPen()->SetColor(0x00FF00);
    sheet->LineTo(19, 5);
    EXPECT_EQ(sheet.at(3, 5), 0xFF0000U);
    EXPECT_EQ(sheet.at(15, 5), 0x00FF00U);
}

TEST(LineRun, AShapeLiesOverTheLinesBeforeIt) {
    Sheet sheet(20, 20);
    sheet->GetPen()->SetColor(0xFF0000);
    sheet->GetBrush()->SetColor(0x0000FF);
    sheet->MoveTo(0, 10);
    sheet->LineTo(19, 10);
    sheet->Rectangle(5, 5, 15, 15);
    EXPECT_EQ(sheet.at(10, 10), 0x0000FFU);
    EXPECT_EQ(sheet.at(2, 10), 0xFF0000U);
}

TEST(LineRun, ALineToTheSamePointIsADot) {
    for (const LineQuality lines : {LineQuality::Pixels, LineQuality::Smooth}) {
        Sheet sheet(9, 9, {.lines = lines});
        sheet->MoveTo(4, 4);
        sheet->LineTo(4, 4);
        EXPECT_EQ(sheet.inked(), QRect(4, 4, 1, 1));
    }
}

TEST(LineRun, ThePositionOutlivesAStroke) {
    Sheet sheet(20, 20, withPixels());
    sheet->MoveTo(2, 3);
    sheet->GetPen()->SetColor(0x0000FF);
    sheet->LineTo(12, 3);
    EXPECT_EQ(sheet.inked(), QRect(2, 3, 11, 1));
}

}  // namespace
}  // namespace Rotavue::Workbench
