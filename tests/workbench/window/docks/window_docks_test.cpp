#include "tests/workbench/analysis/generated_recording.h"
#include "tests/workbench/window/docks/dock_application.h"
#include "workbench/window/docks/channel_tree.h"
#include "workbench/window/docks/number_table.h"
#include "workbench/window/docks/time_plot.h"
#include "workbench/window/main_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>

namespace Rotavue::Workbench {
namespace {

/// The whole window with two planes of a run-up.
class WindowDocksTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.resize(1280, 800);
        window.show();
        add("Bearing 1");
        add("Bearing 2");
        window.bench().setCursor(2.5);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void add(const char* point) {
        Recording recording =
            generate({.sampleRate = 5000.0,
                      .duration = 4.0,
                      .firstSpeed = 900,
                      .lastSpeed = 2400,
                      .orders = {{1.0, {40, 30}, {25, 120}}, {2.0, {6, 80}, {6, 200}}},
                      .xMean = 5.0,
                      .noise = 0.5});
        recording.file = std::string(point) + ".csv";
        recording.machine.point = point;
        recording.machine.rotation = Rotation::CounterClockwise;
        recording.machine.clearanceWidth = recording.machine.clearanceHeight = 160.0;
        window.bench().addPlane(preparePlane(std::move(recording)));
    }

    QWidget* focusIn(const char* dock) {
        QWidget* focus = QApplication::focusWidget();
        auto* widget = window.findChild<QDockWidget*>(dock);
        return widget != nullptr && widget->isAncestorOf(focus) ? focus : nullptr;
    }

    MainWindow window{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
};

TEST_F(WindowDocksTest, EachDockIsReachedByItsKey) {
    const std::pair<Qt::Key, const char*> docks[] = {{Qt::Key_1, "channelDock"},
                                                     {Qt::Key_2, "propertyDock"},
                                                     {Qt::Key_3, "numberDock"},
                                                     {Qt::Key_4, "waveformDock"},
                                                     {Qt::Key_5, "speedDock"}};
    for (const auto& [key, dock] : docks) {
        QTest::keyClick(&window, key, Qt::AltModifier);
        EXPECT_NE(focusIn(dock), nullptr) << dock;
    }
}

TEST_F(WindowDocksTest, ClosedDockComesBackByItsKey) {
    auto* dock = window.findChild<QDockWidget*>("numberDock");
    dock->close();
    QTest::keyClick(&window, Qt::Key_3, Qt::AltModifier);
    EXPECT_TRUE(dock->isVisible());
}

TEST_F(WindowDocksTest, SelectingAChannelMakesItsPlaneTheCurrentOne) {
    auto* tree = window.findChild<QTreeWidget*>("Channels");
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    EXPECT_EQ(window.currentPlane()->name(), "Bearing 1");
    tree->setCurrentItem(tree->topLevelItem(1)->child(0));
    EXPECT_EQ(window.currentPlane()->name(), "Bearing 2");
}

TEST_F(WindowDocksTest, PlaneThatWasOpenedLastIsSelectedInTheTree) {
    EXPECT_EQ(window.currentPlane()->name(), "Bearing 2");
    EXPECT_EQ(window.findChild<ChannelTree*>()->selectedPlane(), 1U);
}

TEST_F(WindowDocksTest, CursorOfAPlotMovesTheBench) {
    auto* plot = window.findChild<TimePlot*>("waveformPlot");
    const LaneMapping lane = plot->mapping(0);
    QTest::mouseClick(plot, Qt::LeftButton, {}, lane.area.center().toPoint());
    EXPECT_NEAR(window.bench().cursor(), 2.0, 4.0 / lane.area.width());
}

// An outline that differs from what is round it and from what is in it.
TEST_F(WindowDocksTest, EmptyCheckBoxIsSeenInBothThemes) {
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        window.setTheme(theme);
        QCheckBox box;
        box.resize(40, 40);
        const QImage image = box.grab().toImage();
        QStyleOptionButton option;
        option.initFrom(&box);
        const QRect square =
            box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
        const int outline = image.pixelColor(square.topLeft() + QPoint(5, 0)).lightness();
        EXPECT_GT(std::abs(outline - image.pixelColor(39, 39).lightness()), 60);
        EXPECT_GT(std::abs(outline - image.pixelColor(square.center()).lightness()), 60);
    }
}

// Docks hold what a bench has made: planes, controls, jobs that run.
TEST_F(WindowDocksTest, WindowEndsWhilePlayingAndComputing) {
    window.bench().playback().play();
    QTest::qWait(50);
}

TEST_F(WindowDocksTest, LooksItsPart) {
    Plane& plane = *window.bench().planes()[0];
    window.bench().setCurves(
        plane, {{CurveKind::Raw}, {CurveKind::Average}, {CurveKind::Harmonic, {1.0}}});
    QSignalSpy computed(window.findChild<NumberTable*>(), &NumberTable::computed);
    ASSERT_TRUE(computed.wait());
    window.setTheme(Theme::Dark);
    shoot(window, "window-docks-dark");
    window.setTheme(Theme::Light);
    shoot(window, "window-docks-light");
}

}  // namespace
}  // namespace Rotavue::Workbench
