#include "tests/workbench/paint/sheet.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

/// A canvas whose texts stand on an orange ground, so that their boxes can be seen.
struct Ground : Sheet {
    explicit Ground(int width, int height) : Sheet(width, height) {
        (*this)->GetBrush()->SetColor(0xFF9900);
    }
};

TEST(CanvasText, StandsInTheBoxThatItsSizeTells) {
    Ground sheet(120, 60);
    const std::wstring text = L"X axis";
    const QSize size(sheet->TextWidth(text), sheet->TextHeight(text));
    sheet->TextOut(10, 20, text);
    EXPECT_EQ(sheet.inked(), QRect(QPoint(10, 20), size));
}

TEST(CanvasText, TurnedUpwardRunsFromItsPointUpAndRight) {
    // A quarter turn about the box's upper left corner: the width goes up, the height to the right.
    Ground sheet(80, 120);
    const std::wstring text = L"Y axis";
    const int width = sheet->TextWidth(text);
    const int height = sheet->TextHeight(text);
    sheet->GetFont()->SetOrientation(900);
    sheet->TextOut(30, 100, text);
    EXPECT_EQ(sheet.inked(), QRect(30, 100 - width, height, width));
}

TEST(CanvasText, BrushStyle1LeavesTheGroundAlone) {
    Ground sheet(120, 60);
    sheet->GetBrush()->SetStyle(1);
    sheet->TextOut(10, 20, L"X");
    EXPECT_EQ(sheet.at(10, 20), 0xFFFFFFU);
    EXPECT_LT(sheet.inked().width(), 14);
}

TEST(CanvasText, HasTheColourOfTheFont) {
    Sheet sheet(60, 60);
    sheet->GetBrush()->SetStyle(1);
    sheet->GetFont()->SetHeight(40);
    sheet->GetFont()->SetColor(0x2D5DF1);
    sheet->TextOut(10, 5, L"I");
    // The stem of the letter is several pixels wide at this height.
    EXPECT_EQ(sheet.at(10 + sheet->TextWidth(L"I") / 2, 30), 0x2D5DF1U);
}

struct Placement {
    std::uint32_t format;
    bool across;
    bool upright;
};

class TextFormat : public ::testing::TestWithParam<Placement> {};

TEST_P(TextFormat, PlacesTheTextInItsBox) {
    Ground sheet(200, 100);
    const std::wstring text = L"X";
    const QSize size(sheet->TextWidth(text), sheet->TextHeight(text));
    sheet->TextRect(20, 10, 180, 90, text, GetParam().format);
    const int x = GetParam().across ? 20 + (160 - size.width()) / 2 : 20;
    const int y = GetParam().upright ? 10 + (80 - size.height()) / 2 : 10;
    EXPECT_EQ(sheet.inked(), QRect(QPoint(x, y), size));
}

INSTANTIATE_TEST_SUITE_P(CanvasText, TextFormat,
                         ::testing::Values(Placement{0x100, false, false},
                                           Placement{0x4, true, false},
                                           Placement{0x14004, true, true}));

TEST(CanvasText, WiderThanItsBoxHangsOverBothSides) {
    Ground sheet(200, 60);
    const int width = sheet->TextWidth(L"1234");
    ASSERT_GT(width, 20);
    sheet->TextRect(90, 10, 110, 30, L"1234", 0x4);
    const QRect box = sheet.inked();
    EXPECT_EQ(box.width(), width);
    EXPECT_LE(std::abs(box.left() + width / 2 - 100), 1);
}

TEST(CanvasText, TheHeightIsALengthWhateverItsSign) {
    Sheet up(10, 10);
    Sheet down(10, 10);
    up->GetFont()->SetHeight(20);
    down->GetFont()->SetHeight(-20);
    EXPECT_EQ(up->TextWidth(L"Orbit"), down->TextWidth(L"Orbit"));
    EXPECT_EQ(up->TextHeight(L"Orbit"), down->TextHeight(L"Orbit"));
    EXPECT_EQ(down->GetFont()->GetHeight(), -20);
}

TEST(CanvasText, SizesFollowTheHeightThatIsSet) {
    Sheet sheet(10, 10, {.fontHeight = 12});
    EXPECT_EQ(sheet->GetFont()->GetHeight(), 12);
    const int small = sheet->TextWidth(L"Shaft (um)");
    sheet->GetFont()->SetHeight(24);
    EXPECT_NEAR(sheet->TextWidth(L"Shaft (um)"), 2 * small, 4);
    EXPECT_GE(sheet->TextHeight(L"x"), 24);
    sheet->GetFont()->SetHeight(12);
    EXPECT_EQ(sheet->TextWidth(L"Shaft (um)"), small);
}

TEST(CanvasText, OfNoLengthHasNoWidthAndALinesHeight) {
    Ground sheet(40, 40);
    EXPECT_EQ(sheet->TextWidth(L""), 0);
    EXPECT_EQ(sheet->TextHeight(L""), sheet->TextHeight(L"Aj"));
    sheet->TextOut(10, 10, L"");
    EXPECT_TRUE(sheet.inked().isNull());
}

TEST(CanvasText, LiesOverTheLinesBeforeIt) {
    Ground sheet(60, 60);
    sheet->MoveTo(0, 25);
    sheet->LineTo(59, 25);
    sheet->TextOut(20, 20, L"   ");
    EXPECT_EQ(sheet.at(22, 25), 0xFF9900U);
}

}  // namespace
}  // namespace Rotavue::Workbench
