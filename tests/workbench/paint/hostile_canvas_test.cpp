#include "tests/workbench/paint/sheet.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::Workbench {
namespace {

constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Odd[] = {Least, Least + 1, -32768, -1, 0, 1, 50, 32768, Most - 1, Most};

class HostileCanvas : public ::testing::TestWithParam<std::tuple<LineQuality, int>> {
protected:
    Sheet sheet{100, 100, {.lines = std::get<0>(GetParam())}, std::get<1>(GetParam())};
};

TEST_P(HostileCanvas, TakesEveryNumberInEveryPlace) {
    for (const std::int32_t a : Odd) {
        for (const std::int32_t b : Odd) {
            sheet->MoveTo(a, b);
            sheet->LineTo(b, a);
            sheet->Ellipse(a, b, b, a);
            sheet->Rectangle(a, a, b, b);
            sheet->Arc(a, b, b, a, a, a, b, b);
            sheet->Arc(0, 100, 100, 0, a, b, b, a);
            sheet->TextOut(a, b, L"text");
            sheet->TextRect(a, b, b, a, L"text", 0x14004);
            sheet->Polygon({a, b, b, a, a, a}, 3);
        }
    }
    EXPECT_EQ(sheet.finish().width(), 100 * std::get<1>(GetParam()));
}

TEST_P(HostileCanvas, TakesEveryPenBrushAndFont) {
    for (const std::int32_t value : Odd) {
        sheet->GetPen()->SetWidth(value);
        sheet->GetPen()->SetStyle(value);
        sheet->GetBrush()->SetStyle(value);
        sheet->GetFont()->SetHeight(value);
        sheet->GetFont()->SetOrientation(value);
        sheet->GetFont()->SetStyle(value);
        sheet->LineTo(50, 50);
        sheet->Ellipse(10, 10, 90, 90);
        sheet->TextOut(50, 50, L"text");
        EXPECT_GE(sheet->TextWidth(L"text"), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Qualities, HostileCanvas,
                         ::testing::Combine(::testing::Values(LineQuality::Pixels,
                                                              LineQuality::Smooth),
                                            ::testing::Values(1, 3)));

TEST(HostilePolygon, CountsThePointsThatAreThere) {
    for (const std::int32_t count : {Least, -1, 0, 1, 2, 3, 4, Most}) {
        Sheet sheet(30, 30);
        sheet->Polygon({5, 5, 25, 5, 5, 25, 7}, count);
        EXPECT_EQ(sheet.at(10, 10) == 0xFFFFFFU, true) << count;
        const bool hasTop = sheet.at(15, 5) == 0U;
        EXPECT_EQ(hasTop, count >= 2) << count;
    }
}

TEST(HostileText, OfAnyLengthIsCutOff) {
    Sheet sheet(100, 100);
    const std::wstring endless(5'000'000, L'W');
    const std::wstring cut(4096, L'W');
    EXPECT_EQ(sheet->TextWidth(endless), sheet->TextWidth(cut));
    sheet->TextOut(0, 0, endless);
    EXPECT_FALSE(sheet.inked().isNull());
}

TEST(HostileShape, AnEnormousEllipseStillFillsTheArea) {
    Sheet sheet(50, 50);
    sheet->GetBrush()->SetColor(0xFF0000);
    sheet->Ellipse(Least, Least, Most, Most);
    EXPECT_EQ(sheet.at(0, 0), 0xFF0000U);
    EXPECT_EQ(sheet.at(49, 49), 0xFF0000U);
}

}  // namespace
}  // namespace Rotavue::Workbench
