#include "workbench/export/plane_report.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "tests/workbench/export/widget_test.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

constexpr int A4Width = 794 - 2 * 48;  // in 1/96 inch, without the margins

class PlaneReportTest : public BenchTest {
protected:
    bool says(const std::string& line) {
        const auto facts = reportFacts(bench_);
        return std::find(facts.begin(), facts.end(), line) != facts.end();
    }

    void addNamed(const std::string& point) {
        Recording recording = rotor();
        recording.machine.machine = "Boiler feed pump 3";
        recording.machine.point = point;
        recording.file = point + ".csv";
        recording.machine.rotation = Rotation::CounterClockwise;
        add(std::move(recording));
    }
};

TEST_F(PlaneReportTest, SaysWhetherRunOutIsCompensated) {
    Plane& plane = add();
    EXPECT_TRUE(says("rotor: run-out not compensated"));
    bench_.showCompensated(plane, still(plane));
    EXPECT_TRUE(says("rotor: run-out compensated: 1X, 2X vector"));
}

TEST_F(PlaneReportTest, SaysOfEachPlaneWhetherItsRunOutIsCompensated) {
    Plane& first = add();
    add();
    EXPECT_TRUE(says("All planes: run-out not compensated"));
    bench_.showCompensated(first, still(first));
    EXPECT_TRUE(
        says("rotor (1): run-out compensated: 1X, 2X vector, rotor (2): run-out not compensated"));
}

TEST_F(PlaneReportTest, OneFileOfTwoPlanesIsToldOnceAndItsPlanesApart) {
    add();
    add();
    EXPECT_TRUE(says("Recording: rotor.csv"));
    EXPECT_EQ(reportNumbers(bench_).groups, (std::vector<std::string>{"rotor (1)", "rotor (2)"}));
}

TEST_F(PlaneReportTest, IsCalledAfterItsMachinesAndNeverAfterOneOfSeveralPlanes) {
    EXPECT_EQ(reportTitle(bench_), "No recording");
    add();
    EXPECT_EQ(reportTitle(bench_), "rotor");
    add();
    EXPECT_EQ(reportTitle(bench_), "2 planes of rotor.csv");
    Recording other = rotor();
    other.file = "other.csv";
    add(std::move(other));
    EXPECT_EQ(reportTitle(bench_), "3 planes");
    addNamed("Bearing 1");
    addNamed("Bearing 2");
    EXPECT_EQ(reportTitle(bench_), "Boiler feed pump 3");
}

// Every cell of the numbers is there, letter by letter, and in text of 7.5 points or more.
TEST_F(PlaneReportTest, NumbersOfUpToSixPlanesAreReadInFullOnA4) {
    for (int planes = 1; planes <= 6; ++planes) {
        addNamed("Bearing " + std::to_string(planes) + ", drive end");
        const ReportTable numbers = reportNumbers(bench_);
        const TablePlaces places = placesOf(numbers, A4Width, {12, 10});
        EXPECT_FALSE(places.isCut) << planes;
        for (const auto& row : numbers.rows)
            for (const std::string& cell : row)
                EXPECT_TRUE(std::any_of(places.texts.begin(), places.texts.end(),
                                        [&](const TableText& text) {
                                            return text.text.toStdString() == cell;
                                        }) ||
                            cell.empty())
                    << planes << ": " << cell;
    }
}

// To be looked at: build/screenshots/report-1.png to report-4.png.
TEST_F(PlaneReportTest, APageOfUpToFourPlanesIsPainted) {
    ASSERT_TRUE(QDir().mkpath(ROTAVUE_SCREENSHOTS_FOLDER));
    for (int planes = 1; planes <= 4; ++planes) {
        addNamed("Bearing " + std::to_string(planes) + ", drive end");
        const std::string bytes = paintReport(drawPlaneReport(
            bench_, {.format = PictureFormat::Png, .width = 794, .height = 1123}, true));
        QFile file(QStringLiteral("%1/report-%2.png").arg(ROTAVUE_SCREENSHOTS_FOLDER).arg(planes));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(bytes));
        file.close();
        EXPECT_EQ(QImage(file.fileName()).size(), QSize(794, 1123));
    }
}

}  // namespace
}  // namespace Rotavue::Workbench
