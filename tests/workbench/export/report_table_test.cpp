#include "workbench/export/report_table.h"

#include "tests/workbench/export/widget_test.h"
#include "workbench/paint/text_face.h"

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

class ReportTableTest : public WidgetTest {
protected:
    /// So many planes of two columns.
    static ReportTable tableOf(int planes, const std::string& name, const std::string& cell) {
        ReportTable table{.head = {""}, .rows = {{"Peak"}, {"Speed"}}, .groups = {}};
        for (int i = 0; i < planes; ++i) {
            table.groups.push_back(name);
            for (const char* probe : {"X", "Y"})
                table.head.push_back(probe);
            table.rows[0].insert(table.rows[0].end(), {cell, cell});
            table.rows[1].insert(table.rows[1].end(), {"3000 rpm", ""});
        }
        return table;
    }

    static QRect boxOf(const TableText& text, int textHeight) {
        const TextFace face(textHeight);
        return {text.corner, QSize(face.width(text.text), face.lineHeight())};
    }

    static int countOf(const TablePlaces& places, const QString& text) {
        return static_cast<int>(
            std::count_if(places.texts.begin(), places.texts.end(),
                          [&](const TableText& one) { return one.text == text; }));
    }
};

TEST_F(ReportTableTest, TextsStandInTheWidthAndBesideEachOther) {
    for (int planes = 1; planes <= 8; ++planes) {
        const TablePlaces places = placesOf(tableOf(planes, "Bearing", "123.45"), 600, {12, 10});
        const QRect page(0, 0, 600, places.height + 1);
        for (const TableText& one : places.texts) {
            const QRect box = boxOf(one, places.textHeight);
            EXPECT_TRUE(page.contains(box)) << planes << ' ' << one.text.toStdString();
            for (const TableText& other : places.texts) {
                if (&one == &other) continue;
                EXPECT_FALSE(box.intersects(boxOf(other, places.textHeight)))
                    << one.text.toStdString() << " and " << other.text.toStdString();
            }
        }
    }
}

// Ten characters are about 70 pixels wide in text of 12, 60 in one of 10: eight columns of them
// and the words have no room in 500 pixels, and four have.
TEST_F(ReportTableTest, WhatHasNoRoomBesideEachOtherStandsInBlocks) {
    const TablePlaces wide = placesOf(tableOf(4, "Bearing", "1234567.89"), 1200, {12, 10});
    EXPECT_EQ(wide.rules.size(), 1U);
    EXPECT_EQ(wide.textHeight, 12);
    EXPECT_EQ(countOf(wide, "Peak"), 1);
    const TablePlaces narrow = placesOf(tableOf(4, "Bearing", "1234567.89"), 500, {12, 10});
    EXPECT_EQ(narrow.rules.size(), 2U);
    EXPECT_EQ(countOf(narrow, "Peak"), 2);
    EXPECT_EQ(countOf(narrow, "1234567.89"), 8);
    EXPECT_FALSE(narrow.isCut);
}

TEST_F(ReportTableTest, SmallerTextIsTriedBeforeMoreBlocks) {
    const ReportTable table = tableOf(4, "Bearing", "1234567.89");
    const int needed = [&] {
        int width = 400;
        while (width < 1000 && placesOf(table, width, {10}).rules.size() > 1)
            ++width;
        return width;
    }();
    const TablePlaces places = placesOf(table, needed, {12, 10});
    EXPECT_EQ(places.textHeight, 10);
    EXPECT_EQ(places.rules.size(), 1U);
}

TEST_F(ReportTableTest, NumberOfTheWholeOrbitStandsInTheMiddleOfItsColumns) {
    const TablePlaces places = placesOf(tableOf(1, "Bearing", "1"), 600, {12});
    const auto find = [&](const QString& text) {
        return boxOf(*std::find_if(places.texts.begin(), places.texts.end(),
                                   [&](const TableText& one) { return one.text == text; }),
                     12);
    };
    EXPECT_NEAR(find("3000 rpm").center().x(), find("Bearing").center().x(), 1);
}

TEST_F(ReportTableTest, LongNamesGoOnInASecondLine) {
    const TablePlaces places =
        placesOf(tableOf(4, "Boiler feed pump drive end", "12.3"), 600, {12});
    EXPECT_FALSE(places.isCut);
    EXPECT_EQ(countOf(places, "Boiler feed pump drive end"), 0);
    EXPECT_EQ(countOf(places, "drive end"), 4);
}

TEST_F(ReportTableTest, WhatHasNoRoomAtAllIsCut) {
    const TablePlaces places =
        placesOf(tableOf(2, std::string(3000, 'm'), std::string(3000, 'm')), 300, {12, 10});
    EXPECT_TRUE(places.isCut);
    EXPECT_EQ(places.textHeight, 10);
    for (const TableText& one : places.texts)
        EXPECT_LE(boxOf(one, 10).right(), 300);
}

TEST_F(ReportTableTest, AnEmptyTableTakesNoRoom) {
    EXPECT_EQ(placesOf({}, 600, {12}).height, 0);
    EXPECT_EQ(placesOf({.head = {"a"}, .rows = {}, .groups = {}}, 600, {12}).height, 0);
}

TEST_F(ReportTableTest, LinesAreBrokenBetweenWordsAndTheLastIsCut) {
    const TextFace face(12);
    const int width = face.width("three words");
    EXPECT_EQ(linesOf("these are three words", 12, width, 5),
              (std::vector<QString>{"these are", "three words"}));
    EXPECT_EQ(linesOf("", 12, width, 5).size(), 0U);
    const auto cut = linesOf("these are three words and more", 12, width, 2);
    ASSERT_EQ(cut.size(), 2U);
    EXPECT_TRUE(cut[1].endsWith(QChar(0x2026)));
}

TEST_F(ReportTableTest, AWordThatIsTooLongIsBroken) {
    const TextFace face(12);
    const auto lines = linesOf("mmmmmm", 12, face.width("mm"), 5);
    EXPECT_EQ(lines, (std::vector<QString>{"mm", "mm", "mm"}));
}

}  // namespace
}  // namespace Rotavue::Workbench
