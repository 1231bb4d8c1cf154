#include "workbench/window/docks/time_plot.h"

#include "tests/workbench/window/docks/dock_application.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

/// Ten seconds at 1 kHz of two probes, 20 turns a second.
class TimePlotTest : public ::testing::Test {
protected:
    TimePlotTest() {
        for (int i = 0; i <= 10'000; ++i) {
            const double turns = i / 50.0;
            x.push_back(30.0 * std::cos(2.0 * std::numbers::pi * turns));
            y.push_back(20.0 * std::sin(2.0 * std::numbers::pi * turns) + 5.0);
        }
        plot.resize(640, 320);
        show();
        plot.show();
        QObject::connect(&plot, &TimePlot::cursorMoved,
                         [this](double time) { cursors.push_back(time); });
        QObject::connect(&plot, &TimePlot::markChanged,
                         [this](const auto& mark) { marks.push_back(mark); });
    }

    void show() {
        plot.setLanes({{"X", "um", LaneColor::X, std::make_shared<SampleTrace>(x, 1000.0)},
                       {"Y", "um", LaneColor::Y, std::make_shared<SampleTrace>(y, 1000.0)}});
        std::vector<double> passings;
        for (int turn = 0; turn <= 200; ++turn)
            passings.push_back(turn * 0.05);
        plot.setDots(std::move(passings));
    }

    /// The pixel of a time, in the middle of the first lane.
    QPoint at(double time) const {
        const LaneMapping lane = plot.mapping(0);
        return {static_cast<int>(std::lround(lane.xOf(time))),
                static_cast<int>(lane.area.center().y())};
    }

    double pixel() const { return plot.timeRange().length() / plot.mapping(0).area.width(); }

    void turnWheel(const QPoint& place, int notches, Qt::KeyboardModifiers keys = {}) {
        QWheelEvent event(place, plot.mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                          keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&plot, &event);
    }

    std::vector<double> x;
    std::vector<double> y;
    TimePlot plot;
    std::vector<double> cursors;
    std::vector<std::optional<TimeSpan>> marks;
};

TEST_F(TimePlotTest, ShowsTheWholeRecordingFirst) {
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 10.0}));
    EXPECT_LT(plot.valueRange(0).from, -30.0);
    EXPECT_GT(plot.valueRange(0).to, 30.0);
    EXPECT_GT(plot.valueRange(1).from, -20.0);  // -15 and some room
}

TEST_F(TimePlotTest, LanesThatLastAsLongAreShownAtTheSameTime) {
    turnWheel(at(3.0), 4, Qt::ShiftModifier);
    const PlotRange lookedAt = plot.timeRange();
    ASSERT_LT(lookedAt.length(), 9.0);
    show();
    EXPECT_EQ(plot.timeRange(), lookedAt);
    plot.setLanes({});  // a long recording is being read through
    show();
    EXPECT_EQ(plot.timeRange(), lookedAt);
    x.resize(5'001);
    y.resize(5'001);
    show();
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 5.0}));
}

TEST_F(TimePlotTest, DragMovesTheCursor) {
    QTest::mousePress(&plot, Qt::LeftButton, {}, at(2.0));
    QTest::mouseMove(&plot, at(7.0));
    QTest::mouseRelease(&plot, Qt::LeftButton, {}, at(7.0));
    ASSERT_EQ(cursors.size(), 2U);
    EXPECT_NEAR(cursors[0], 2.0, pixel());
    EXPECT_NEAR(cursors[1], 7.0, pixel());
    EXPECT_EQ(plot.cursor(), cursors[1]);
    EXPECT_TRUE(marks.empty());
}

TEST_F(TimePlotTest, CursorStaysInTheRecording) {
    QTest::mouseClick(&plot, Qt::LeftButton, {}, QPoint(1, 100));
    EXPECT_EQ(cursors.back(), 0.0);
    QTest::mouseClick(&plot, Qt::LeftButton, {}, QPoint(639, 100));
    EXPECT_EQ(cursors.back(), 10.0);
}

TEST_F(TimePlotTest, CursorFromElsewhereIsShownAndToldToNobody) {
    plot.setCursor(4.0);
    EXPECT_EQ(plot.cursor(), 4.0);
    EXPECT_TRUE(cursors.empty());
}

TEST_F(TimePlotTest, ControlDragMarksAStretchEitherWay) {
    QTest::mousePress(&plot, Qt::LeftButton, Qt::ControlModifier, at(6.0));
    QTest::mouseMove(&plot, at(3.0));
    QTest::mouseRelease(&plot, Qt::LeftButton, Qt::ControlModifier, at(3.0));
    ASSERT_EQ(marks.size(), 1U);  // told at the end, not on the way
    ASSERT_TRUE(marks[0]);
    EXPECT_NEAR(marks[0]->from, 3.0, pixel());
    EXPECT_NEAR(marks[0]->to, 6.0, pixel());
    EXPECT_TRUE(cursors.empty());
}

TEST_F(TimePlotTest, KeysMarkFromCursorToCursor) {
    plot.setCursor(2.0);
    QTest::keyClick(&plot, Qt::Key_I);
    plot.setCursor(5.0);
    QTest::keyClick(&plot, Qt::Key_O);
    ASSERT_TRUE(plot.mark());
    EXPECT_EQ(plot.mark()->from, 2.0);
    EXPECT_EQ(plot.mark()->to, 5.0);
    QTest::keyClick(&plot, Qt::Key_Delete);
    EXPECT_FALSE(plot.mark());
    EXPECT_EQ(marks.size(), 3U);
}

TEST_F(TimePlotTest, KeysBeyondTheOtherEndBeginANewMark) {
    plot.setMark(TimeSpan{2.0, 5.0});
    plot.setCursor(7.0);
    QTest::keyClick(&plot, Qt::Key_I);
    EXPECT_EQ(plot.mark(), (TimeSpan{7.0, plot.timeRange().to}));
    plot.setCursor(1.0);
    QTest::keyClick(&plot, Qt::Key_O);
    EXPECT_EQ(plot.mark(), (TimeSpan{0.0, 1.0}));
}

TEST_F(TimePlotTest, WheelZoomsBothAxesAboutThePointer) {
    const double before = plot.valueRange(0).length();
    turnWheel(at(4.0), 1);
    EXPECT_NEAR(plot.timeRange().length(), 8.0, 1e-9);  // 0.8 of it for each notch
    EXPECT_NEAR(plot.mapping(0).xOf(4.0), at(4.0).x(), 1.0);
    EXPECT_NEAR(plot.valueRange(0).length(), 0.8 * before, 1e-9);
    EXPECT_EQ(at(4.0).x(), at(4.0).x());
}

TEST_F(TimePlotTest, ShiftZoomsTheTimeAloneAndControlTheValues) {
    const PlotRange values = plot.valueRange(0);
    turnWheel(at(4.0), 1, Qt::ShiftModifier);
    EXPECT_EQ(plot.valueRange(0), values);
    EXPECT_NEAR(plot.timeRange().length(), 8.0, 1e-9);
    const PlotRange other = plot.valueRange(1);
    turnWheel(at(4.0), 1, Qt::ControlModifier);
    EXPECT_NEAR(plot.timeRange().length(), 8.0, 1e-9);
    EXPECT_NEAR(plot.valueRange(0).length(), 0.8 * values.length(), 1e-9);
    EXPECT_EQ(plot.valueRange(1), other);  // the lane under the pointer alone
}

TEST_F(TimePlotTest, ZoomEndsBeforeNumbersLoseTheirDigits) {
    for (int i = 0; i < 200; ++i)
        turnWheel(at(plot.timeRange().from), 1);
    EXPECT_GT(plot.timeRange().length(), 0.0);
    EXPECT_GT(plot.valueRange(0).length(), 0.0);
    for (int i = 0; i < 400; ++i)
        turnWheel(at(plot.timeRange().from), -1);
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 10.0}));
}

TEST_F(TimePlotTest, DoubleClickAndZeroShowEverything) {
    turnWheel(at(4.0), 3);
    QTest::mouseDClick(&plot, Qt::LeftButton, {}, at(plot.timeRange().from));
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 10.0}));
    turnWheel(at(4.0), 3);
    QTest::keyClick(&plot, Qt::Key_0);
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 10.0}));
}

TEST_F(TimePlotTest, KeysZoomAboutTheCursorAndTurnPages) {
    plot.setCursor(2.0);
    QTest::keyClick(&plot, Qt::Key_Plus);
    EXPECT_EQ(plot.timeRange(), (PlotRange{1.0, 6.0}));
    QTest::keyClick(&plot, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(plot.timeRange(), (PlotRange{5.0, 10.0}));  // as far as there is something
    QTest::keyClick(&plot, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 5.0}));
    QTest::keyClick(&plot, Qt::Key_Minus);
    EXPECT_EQ(plot.timeRange(), (PlotRange{0.0, 10.0}));
}

TEST_F(TimePlotTest, PlayingTurnsToThePageOfTheCursor) {
    plot.setCursor(1.0);
    QTest::keyClick(&plot, Qt::Key_Plus);
    QTest::keyClick(&plot, Qt::Key_Plus);
    ASSERT_EQ(plot.timeRange(), (PlotRange{0.75, 3.25}));
    plot.setCursor(3.3);
    EXPECT_EQ(plot.timeRange(), (PlotRange{3.25, 5.75}));
}

TEST_F(TimePlotTest, TraceReachesFromItsSmallestToItsLargestValueInEachColumn) {
    // 10,000 samples on some 570 columns: in each a third of a turn and more, so that columns which
    // hold a crest are inked there.
    const QImage image = plot.grab().toImage();
    const LaneMapping lane = plot.mapping(0);
    const QRgb ink = plotColors(plot.palette()).x.rgb();
    const int top = static_cast<int>(lane.yOf(30.0));
    int inked = 0;
    for (int column = 0; column < image.width(); ++column)
        for (int row = top - 1; row <= top + 1; ++row)
            if (image.pixel(column, row) == ink) ++inked;
    EXPECT_GT(inked, 190);  // crests in 200 turns
}

TEST_F(TimePlotTest, DotsStandOnTheTraceWhereTheyHaveRoom) {
    const QRgb dot = plotColors(plot.palette()).text.rgb();
    const auto dotAt = [&](double time, std::size_t lane, double value) {
        const LaneMapping mapping = plot.mapping(lane);
        const QPoint place(static_cast<int>(mapping.xOf(time)),
                           static_cast<int>(mapping.yOf(value)));
        const QImage image = plot.grab().toImage();
        return image.pixel(place * static_cast<int>(image.devicePixelRatio())) == dot;
    };
    EXPECT_FALSE(dotAt(5.0, 0, 30.0));  // 200 dots in 570 pixels
    plot.setCursor(5.02);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&plot, Qt::Key_Plus);
    EXPECT_TRUE(dotAt(5.0, 0, 30.0));  // cos 0
    EXPECT_TRUE(dotAt(5.0, 1, 5.0));   // sin 0, and the mean
    EXPECT_FALSE(dotAt(5.025, 0, -30.0));
}

TEST_F(TimePlotTest, NothingHappensWithoutLanes) {
    plot.setLanes({});
    plot.setEmptyText("Nothing is open");
    QTest::mouseClick(&plot, Qt::LeftButton, {}, QPoint(100, 100));
    QTest::keyClick(&plot, Qt::Key_Plus);
    turnWheel({100, 100}, 1);
    plot.setCursor(3.0);
    plot.grab();
    EXPECT_TRUE(cursors.empty());
}

TEST_F(TimePlotTest, GapsAndOneSampleAreNoTrouble) {
    for (auto& value : x)
        value = NAN;
    y.resize(1);
    show();
    plot.grab();
    EXPECT_GT(plot.valueRange(0).length(), 0.0);
}

/// The number of texts beside a lane: runs of rows that have ink between the edge and the lane.
int labelsBeside(TimePlot& plot, std::size_t lane) {
    const QImage image = plot.grab().toImage();
    const QRgb ground = plotColors(plot.palette()).background.rgb();
    const QRectF area = plot.mapping(lane).area;
    const auto isInked = [&](int row) {
        for (int column = 2; column < static_cast<int>(area.left()) - 2; ++column)
            if (image.pixel(column, row) != ground) return true;
        return false;
    };
    int labels = 0;
    bool before = false;
    for (int row = static_cast<int>(area.top()) - 4; row < area.bottom() + 8; ++row) {
        const bool now = isInked(row);
        labels += now && !before ? 1 : 0;
        before = now;
    }
    return labels;
}

TEST_F(TimePlotTest, TwoNumbersAtLeastTellTheScaleOfEachLane) {
    const struct {
        double mean;
        double factor;
    } cases[] = {{0.0, 1.0}, {-9800.0, 10.0}, {-9.8, 0.01}, {0.0, 1e-6}, {1e7, 1e-3}};
    for (const auto& c : cases) {
        for (std::size_t i = 0; i < x.size(); ++i) {
            x[i] = c.mean + c.factor * 30.0 * std::cos(0.1 * static_cast<double>(i));
            y[i] = c.mean + c.factor * 20.0 * std::sin(0.1 * static_cast<double>(i));
        }
        plot.resize(336, 190);  // what a lane has at 1280 x 800, and less
        show();
        EXPECT_GE(labelsBeside(plot, 0), 2) << c.mean << ' ' << c.factor;
        EXPECT_GE(labelsBeside(plot, 1), 2) << c.mean << ' ' << c.factor;
    }
}

TEST_F(TimePlotTest, TheWidestNumberHasRoomBesideTheLane) {
    const double usual = plot.mapping(0).area.left();
    for (double& value : x)
        value = -1234.56789 + 1e-7 * value;
    show();
    const double wide = plot.mapping(0).area.left();
    EXPECT_GT(wide, usual);
    EXPECT_EQ(plot.mapping(1).area.left(), wide);  // one time axis
    const QImage image = plot.grab().toImage();
    const QRgb ground = plotColors(plot.palette()).background.rgb();
    for (int row = 1; row < image.height() - 1; ++row)
        EXPECT_EQ(image.pixel(2, row), ground) << row;  // no text is cut at the edge
}

TEST_F(TimePlotTest, NumbersWithoutEndLeaveRoomForTheLanes) {
    for (double& value : x)
        value *= 1e300;
    show();
    EXPECT_LE(plot.mapping(0).area.left(), plot.width() / 2.0);
}

TEST_F(TimePlotTest, LooksItsPart) {
    plot.setFocus();
    plot.setCursor(4.2);
    plot.setMark(TimeSpan{1.0, 2.5});
    screenshot(plot, "waveforms-whole");
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&plot, Qt::Key_Plus);
    plot.setMark(TimeSpan{4.25, 4.3});
    screenshot(plot, "waveforms-turns");
}

}  // namespace
}  // namespace Rotavue::Workbench
