#include "workbench/window/docks/number_table.h"

#include "tests/workbench/analysis/generated_recording.h"
#include "tests/workbench/window/docks/dock_application.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

/// 1X 40 um peak at 30 degrees lag in X and 20 at 120 in Y, 2X 5 at 200 and 5 at 290: with the
/// probes at right and up both turn counter-clockwise, as the shaft does.
ShownTurns rotor(const char* name, bool keyphasor = true) {
    Recording recording =
        generate({.duration = 1.0,
                  .firstSpeed = 1500,
                  .lastSpeed = 1500,
                  .firstTurn = 0.0,
                  .orders = {{1.0, {40, 30}, {20, 120}}, {2.0, {5, 200}, {5, 290}}},
                  .xMean = 100.0,
                  .yMean = -50.0});
    recording.machine.rotation = Rotation::CounterClockwise;
    if (!keyphasor) recording = withoutKeyphasor(std::move(recording));
    const auto shared = std::make_shared<const Recording>(std::move(recording));
    return {name, shared, std::make_shared<const ShaftTrack>(*shared), {0.2, 0.6}};
}

const NumberRow& rowOf(const NumberSheet& sheet, const QString& name) {
    for (const NumberRow& row : sheet.rows)
        if (row.name == name) return row;
    throw std::logic_error("no row " + name.toStdString());
}

using Cells = std::vector<QString>;

TEST(NumberSheet, HasTheNumbersOfTheStretchByTheFieldsConventions) {
    const NumberSheet sheet = numberSheet({rotor("Bearing 1")});
    EXPECT_EQ(sheet.columns,
              (std::vector<NumberColumn>{{"Bearing 1", "X (um)"}, {"Bearing 1", "Y (um)"}}));
    EXPECT_EQ(rowOf(sheet, "Gap").cells, (Cells{"100.00", "-50.00"}));
    EXPECT_EQ(rowOf(sheet, "1X, pp").cells, (Cells{"80.00", "40.00"}));
    EXPECT_EQ(rowOf(sheet, "1X lag (deg)").cells, (Cells{"30.0", "120.0"}));
    EXPECT_EQ(rowOf(sheet, "2X, pp").cells, (Cells{"10.00", "10.00"}));
    EXPECT_EQ(rowOf(sheet, "2X lag (deg)").cells, (Cells{"200.0", "290.0"}));
    EXPECT_EQ(rowOf(sheet, "1X precession").cells, (Cells{"forward", ""}));
    EXPECT_EQ(rowOf(sheet, "2X precession").cells, (Cells{"forward", ""}));
    EXPECT_EQ(rowOf(sheet, "Speed (rpm)").cells, (Cells{"1500", ""}));
    EXPECT_TRUE(sheet.notes.empty());
}

// 1X is 40 to the right and 20 up, 90 degrees from the top; 2X is a circle, which leans no way.
TEST(NumberSheet, TellsTheShapeOfTheEllipses) {
    const NumberSheet sheet = numberSheet({rotor("Bearing 1")});
    EXPECT_EQ(rowOf(sheet, "1X axes ratio").cells, (Cells{"0.50", ""}));
    EXPECT_EQ(rowOf(sheet, "1X tilt (deg)").cells, (Cells{"90.0", ""}));
    EXPECT_EQ(rowOf(sheet, "2X axes ratio").cells, (Cells{"1.00", ""}));
    EXPECT_EQ(rowOf(sheet, "2X tilt (deg)").cells, (Cells{"-", ""}));
}

ShaftCenterChoice restsAt(RestPosition place, std::optional<TimeSpan> span = {}) {
    ShaftCenterChoice choice;
    choice.rest = place;
    choice.restSpan = span;
    return choice;
}

/// A shaft that turns counter-clockwise, 60 um right of its rest and 120 above it.
ShownTurns lifted(const ShaftCenterChoice& rest, double clearance = 400.0) {
    Recording recording = generate({.xMean = 60.0, .yMean = 120.0});
    recording.machine.rotation = Rotation::CounterClockwise;
    recording.machine.clearanceWidth = clearance;
    recording.machine.clearanceHeight = clearance;
    const auto shared = std::make_shared<const Recording>(std::move(recording));
    return {.plane = "B",
            .recording = shared,
            .track = std::make_shared<const ShaftTrack>(*shared),
            .span = {0.2, 0.6},
            .shaftCenter = rest};
}

// The bottom is at (0, -200): 60 right and 80 below the middle are 100 of 200 away, and atan(60 /
// 80) = 36.87 degrees ahead of straight down.
TEST(NumberSheet, TellsThePositionInTheBearing) {
    const NumberSheet sheet = numberSheet({lifted(restsAt(RestPosition::BottomOfClearance))});
    EXPECT_EQ(rowOf(sheet, "Position e/c").cells, (Cells{"0.50", ""}));
    EXPECT_EQ(rowOf(sheet, "Attitude (deg)").cells, (Cells{"36.9", ""}));
}

// Over its rest span it is where it always is: at the bottom, or in the middle.
TEST(NumberSheet, CountsThePositionFromTheMarkedRest) {
    ShaftCenterChoice rest = restsAt(RestPosition::BottomOfClearance, TimeSpan{0.0, 0.1});
    EXPECT_EQ(rowOf(numberSheet({lifted(rest)}), "Position e/c").cells[0], "1.00");
    rest.rest = RestPosition::Centre;
    const NumberSheet middle = numberSheet({lifted(rest)});
    EXPECT_EQ(rowOf(middle, "Position e/c").cells[0], "0.00");
    EXPECT_EQ(rowOf(middle, "Attitude (deg)").cells[0], "-");
}

TEST(NumberSheet, HasNoPositionWithoutRestClearanceOrMean) {
    const ShaftCenterChoice bottom = restsAt(RestPosition::BottomOfClearance);
    ShownTurns ac = lifted(bottom);
    Recording recording = *ac.recording;
    recording.coupling = Coupling::Ac;
    ac.recording = std::make_shared<const Recording>(std::move(recording));
    for (const ShownTurns& turns : {lifted({}), lifted(bottom, 0.0), ac}) {
        const NumberSheet sheet = numberSheet({turns});
        EXPECT_EQ(rowOf(sheet, "Position e/c").cells, (Cells{"-", ""}));
        EXPECT_EQ(rowOf(sheet, "Attitude (deg)").cells, (Cells{"-", ""}));
    }
}

// Of 1X alone: the ellipse of half axes 40 and 20 reaches 40 from its middle, and the larger
// peak-to-peak is 80.
TEST(NumberSheet, NamesTheMethodOfSmax) {
    Recording recording = generate({.orders = {{1.0, {40, 0}, {20, 90}}}, .xMean = 7.0});
    const auto shared = std::make_shared<const Recording>(std::move(recording));
    const ShownTurns turns{"B", shared, std::make_shared<const ShaftTrack>(*shared), {0.2, 0.6}};
    const NumberSheet sheet = numberSheet({turns});
    const QString smax = rowOf(sheet, "Smax (ISO C)").cells[0];
    EXPECT_NEAR(smax.toDouble(), 40.0, 0.1);
    EXPECT_NEAR(rowOf(sheet, "Peak-to-peak").cells[0].toDouble(), 80.0, 0.1);
    EXPECT_EQ(rowOf(sheet, "1X precession").cells[0], "unknown");  // the rotation is not given
}

TEST(NumberSheet, SaysWhyNumbersAreMissing) {
    const NumberSheet sheet = numberSheet({rotor("A"), rotor("B", false)});
    EXPECT_EQ(rowOf(sheet, "1X, pp").cells, (Cells{"80.00", "40.00", "-", "-"}));
    EXPECT_EQ(rowOf(sheet, "1X precession").cells, (Cells{"forward", "", "-", ""}));
    EXPECT_EQ(rowOf(sheet, "Gap").cells, (Cells{"100.00", "-50.00", "100.00", "-50.00"}));
    ASSERT_FALSE(sheet.notes.empty());
    EXPECT_TRUE(sheet.notes[0].startsWith("B: "));
}

// The fit finds some rounding for an order that isn't there, with a lag and a sense of its own.
TEST(NumberSheet, OrderThatIsNotThereHasNeitherLagNorSense) {
    Recording recording = generate({.orders = {{1.0, {40, 0}, {20, 90}}}});
    recording.machine.rotation = Rotation::CounterClockwise;
    const auto shared = std::make_shared<const Recording>(std::move(recording));
    const ShownTurns turns{"B", shared, std::make_shared<const ShaftTrack>(*shared), {0.2, 0.6}};
    const NumberSheet sheet = numberSheet({turns});
    EXPECT_EQ(rowOf(sheet, "2X, pp").cells, (Cells{"0.00", "0.00"}));
    EXPECT_EQ(rowOf(sheet, "2X lag (deg)").cells, (Cells{"-", "-"}));
    EXPECT_EQ(rowOf(sheet, "2X precession").cells, (Cells{"-", ""}));
    EXPECT_EQ(rowOf(sheet, "2X axes ratio").cells, (Cells{"-", ""}));
    EXPECT_EQ(rowOf(sheet, "2X tilt (deg)").cells, (Cells{"-", ""}));
    EXPECT_NE(rowOf(sheet, "1X precession").cells[0], "-");
}

TEST(NumberSheet, WhatTheOrbitDoesNotShowHasNoNumbers) {
    ShownTurns turns = rotor("A");
    turns.isAnyShown = false;
    const NumberSheet sheet = numberSheet({turns});
    EXPECT_EQ(rowOf(sheet, "Peak-to-peak").cells, (Cells{"-", "-"}));
    ASSERT_EQ(sheet.notes.size(), 1U);
    EXPECT_EQ(sheet.notes[0],
              "A: no whole turn of the shaft before the cursor, the orbit shows nothing");
}

TEST(NumberSheet, StretchWithoutASampleIsToldOf) {
    ShownTurns turns = rotor("A");
    turns.span = {5.0, 6.0};
    const NumberSheet sheet = numberSheet({turns});
    EXPECT_EQ(rowOf(sheet, "Peak-to-peak").cells, (Cells{"-", "-"}));
    EXPECT_EQ(sheet.notes.size(), 1U);
}

class NumberTableTest : public ::testing::Test {
protected:
    NumberTableTest() {
        table.resize(520, 420);
        table.show();
    }

    void compute(std::vector<ShownTurns> planes) {
        QSignalSpy computed(&table, &NumberTable::computed);
        table.showTurns(std::move(planes));
        ASSERT_TRUE(computed.wait());
    }

    NumberTable table;
    QTableView& view = *table.findChild<QTableView*>("Numbers");
};

TEST_F(NumberTableTest, ComputesOffTheWindowsThreadAndShows) {
    table.showTurns({rotor("A")});
    EXPECT_EQ(table.model().rowCount(), 0);  // not yet
    compute({rotor("A")});
    EXPECT_EQ(table.model().rowCount(), 17);
    EXPECT_EQ(view.columnSpan(1, 0), 2);  // Smax is of the orbit, not of a probe
    EXPECT_EQ(view.columnSpan(0, 0), 1);
}

TEST_F(NumberTableTest, ManyStretchesAtOnceAreComputedOnceWithTheLast) {
    QSignalSpy computed(&table, &NumberTable::computed);
    ShownTurns turns = rotor("A");
    for (int i = 0; i < 50; ++i) {
        turns.span = {0.0, 0.2 + 0.01 * i};
        table.showTurns({turns});
    }
    ASSERT_TRUE(computed.wait());
    EXPECT_EQ(computed.count(), 1);
    EXPECT_EQ(rowOf(table.model().sheet(), "Stretch (s)").cells[0], "0.0000 to 0.6900");
}

TEST_F(NumberTableTest, CopiesEverythingWhereNothingIsSelected) {
    compute({rotor("A")});
    view.setFocus();
    QTest::keySequence(&view, QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 19);  // header, 17 rows, and the end of the last line
    EXPECT_EQ(lines[0], "\tA X (um)\tA Y (um)");
    EXPECT_EQ(lines[6], "1X, pp\t80.00\t40.00");
    EXPECT_EQ(lines[8], "1X precession\tforward\t");
}

TEST_F(NumberTableTest, CopiesTheSelectedCellsWithTheirHeaders) {
    compute({rotor("A")});
    view.setCurrentIndex(view.model()->index(5, 1));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(table.selectedText(), "\tA Y (um)\n1X, pp\t40.00\n1X lag (deg)\t120.0\n");
}

TEST_F(NumberTableTest, SelectionStaysWhileTheNumbersChange) {
    compute({rotor("A")});
    view.selectionModel()->select(view.model()->index(5, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    ShownTurns later = rotor("A");
    later.span = {0.4, 0.8};
    compute({later});
    EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 2);
}

TEST_F(NumberTableTest, WarnsOfUnequalSpansAndOffersToMendThem) {
    const QSignalSpy wanted(&table, &NumberTable::equalSpansWanted);
    auto* button = table.findChild<QPushButton*>();
    EXPECT_FALSE(button->isVisible());
    table.showScaleWarnings({"Bearing 1: x spans 200 and y 100: the orbit is out of shape"});
    ASSERT_TRUE(button->isVisible());
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(wanted.count(), 1);
    table.showScaleWarnings({});
    EXPECT_FALSE(button->isVisible());
}

TEST_F(NumberTableTest, NoTextIsCutHoweverNarrowTheTableIs) {
    table.resize(200, 160);  // the last rows are out of sight
    compute({rotor("A"), rotor("B", false)});
    const QFontMetrics metrics(view.font());
    for (int row = 0; row < table.model().rowCount(); ++row) {
        for (int column = 0; column < table.model().columnCount(); ++column) {
            const QModelIndex cell = table.model().index(row, column);
            const int span = view.columnSpan(row, column);
            const int room =
                view.columnWidth(column) + (span > 1 ? view.columnWidth(column + 1) : 0);
            EXPECT_LT(metrics.horizontalAdvance(cell.data().toString()), room) << row;
        }
    }
}

TEST_F(NumberTableTest, ColumnsStandStillWhenTheirNumbersGetShorter) {
    ShownTurns turns = rotor("A");
    compute({turns});
    const int width = view.columnWidth(0);
    turns.isAnyShown = false;  // nothing but "-"
    compute({turns});
    EXPECT_EQ(view.columnWidth(0), width);
    compute({});
    turns.plane = "B";
    compute({turns});
    EXPECT_LT(view.columnWidth(0), width);
}

TEST_F(NumberTableTest, LooksItsPart) {
    compute({rotor("Bearing 1"), rotor("Bearing 2", false)});
    table.showScaleWarnings({"Bearing 1: x spans 200 and y 100: the orbit is out of shape"});
    screenshot(table, "numbers");
}

}  // namespace
}  // namespace Rotavue::Workbench
