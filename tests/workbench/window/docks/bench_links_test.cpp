#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/bench/axis_limits.h"
#include "workbench/window/docks/channel_link.h"
#include "workbench/window/docks/number_link.h"
#include "workbench/window/docks/property_link.h"
#include "workbench/window/docks/time_link.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

class PropertyLinkTest : public BenchTest {
protected:
    PropertyLinkTest() { link.setCurrent(&add()); }

    QSpinBox& ticks() { return *panel.findChild<QSpinBox*>("TickCount"); }

    PropertyPanel panel;
    PropertyLink link{bench_, panel};
};

TEST_F(PropertyLinkTest, ChangeInThePanelIsOneStepOfUndo) {
    const int before = bench_.undoStack().count();
    QTest::keyClick(&ticks(), Qt::Key_Up);
    ASSERT_EQ(bench_.undoStack().count(), before + 1);
    EXPECT_TRUE(bench_.undoStack().undoText().contains("Number of ticks"));
    EXPECT_EQ(bench_.planes()[0]->settings().at(L"tickCount"), L"4");
    bench_.undoStack().undo();
    EXPECT_EQ(ticks().value(), 3);
    bench_.undoStack().redo();
    EXPECT_EQ(ticks().value(), 4);
}

TEST_F(PropertyLinkTest, ShowsWhatIsSetElsewhere) {
    Settings settings = bench_.planes()[0]->settings();
    settings[L"tickCount"] = L"11";
    bench_.setSettings(*bench_.planes()[0], settings);
    EXPECT_EQ(ticks().value(), 11);
}

TEST_F(PropertyLinkTest, EachPlaneHasItsOwnSettings) {
    Plane& second = add();
    QTest::keyClick(&ticks(), Qt::Key_Up);
    link.setCurrent(&second);
    EXPECT_EQ(ticks().value(), 3);
    QTest::keyClick(&ticks(), Qt::Key_Down);
    EXPECT_EQ(second.settings().at(L"tickCount"), L"2");
    EXPECT_EQ(bench_.planes()[0]->settings().at(L"tickCount"), L"4");
    link.setCurrent(nullptr);
    EXPECT_EQ(panel.findChild<QSpinBox*>("TickCount"), nullptr);
}

TEST_F(PropertyLinkTest, TheTitleFollowsWhatTellsPlanesOfOneNameApart) {
    const auto title = [this] { return panel.findChild<QLabel*>()->toolTip(); };
    const QString before = title();
    Plane& second = add();
    EXPECT_NE(title(), before);
    EXPECT_TRUE(title().contains("rotor (1)")) << title().toStdString();
    bench_.removePlane(second);
    EXPECT_EQ(title(), before);
}

class ChannelLinkTest : public BenchTest {
protected:
    QTreeWidgetItem* row(int plane, int channel) {
        return tree.findChild<QTreeWidget*>()->topLevelItem(plane)->child(channel);
    }

    ChannelTree tree;
    ChannelLink link{bench_, tree};
};

TEST_F(ChannelLinkTest, TickedCurveIsAssignedAndUndone) {
    Plane& plane = add();
    row(0, 2)->setCheckState(0, Qt::Checked);  // average
    const std::vector<CurveRequest> both{{CurveKind::Raw}, {CurveKind::Average}};
    EXPECT_EQ(plane.curves(), both);
    // The plug-in's own list of assigned channels has it.
    EXPECT_FALSE(plane.host().description.assigned.channels.empty());
    bench_.undoStack().undo();
    EXPECT_EQ(plane.curves(), std::vector<CurveRequest>{{CurveKind::Raw}});
    EXPECT_EQ(row(0, 2)->checkState(0), Qt::Unchecked);
}

TEST_F(ChannelLinkTest, RestOfTheShaftIsUndoneToo) {
    Plane& plane = add();
    Q_EMIT tree.restWanted(0, RestPosition::BottomOfClearance);
    EXPECT_EQ(plane.curveOptions().shaftCenter.rest, RestPosition::BottomOfClearance);
    bench_.undoStack().undo();
    EXPECT_EQ(plane.curveOptions().shaftCenter.rest, RestPosition::Centre);
}

TEST_F(ChannelLinkTest, PlanesComeAndGo) {
    EXPECT_EQ(tree.findChild<QTreeWidget*>()->topLevelItemCount(), 0);
    add();
    Plane& second = add();
    EXPECT_EQ(tree.findChild<QTreeWidget*>()->topLevelItemCount(), 2);
    link.setCurrent(&second);
    EXPECT_EQ(tree.selectedPlane(), 1U);
    bench_.removePlane(second);
    EXPECT_EQ(tree.findChild<QTreeWidget*>()->topLevelItemCount(), 1);
    Q_EMIT tree.curvesWanted(7, {});  // of a plane that has gone
}

TEST_F(ChannelLinkTest, PlanesOfOneNameAreToldApart) {
    add();
    const auto name = [this](int plane) {
        return tree.findChild<QTreeWidget*>()->topLevelItem(plane)->text(0);
    };
    EXPECT_EQ(name(0), "rotor");
    add();
    EXPECT_EQ(name(0), "rotor (1)");
    EXPECT_EQ(name(1), "rotor (2)");
    bench_.undoStack().undo();
    EXPECT_EQ(name(0), "rotor");
}

class TimeLinkTest : public BenchTest {
protected:
    TimePlot waveforms;
    TimePlot speed;
    MarkedStretch stretch;
    TimeLink link{bench_, waveforms, speed, stretch};
};

TEST_F(TimeLinkTest, OneCursorForAll) {
    link.setCurrent(&add());
    Q_EMIT waveforms.cursorMoved(0.4);
    EXPECT_EQ(bench_.cursor(), 0.4);
    EXPECT_EQ(speed.cursor(), 0.4);
    bench_.setCursor(0.7);
    EXPECT_EQ(waveforms.cursor(), 0.7);
}

TEST_F(TimeLinkTest, OneMarkedStretchForAll) {
    link.setCurrent(&add());
    Q_EMIT speed.markChanged(TimeSpan{0.1, 0.3});
    ASSERT_TRUE(stretch.span());
    EXPECT_EQ(stretch.span()->to, 0.3);
    EXPECT_EQ(waveforms.mark()->from, 0.1);
    stretch.set({});
    EXPECT_FALSE(waveforms.mark());
    EXPECT_FALSE(speed.mark());
}

TEST_F(TimeLinkTest, ShowsTheRecordingAndItsSpeed) {
    link.setCurrent(&add());
    // 10,000 samples at 10 kHz; the speed, 3000 rpm, is drawn from 0.
    EXPECT_NEAR(waveforms.timeRange().to, 0.9999, 1e-9);
    EXPECT_GT(waveforms.valueRange(0).to, 40.0);
    EXPECT_LE(speed.valueRange(0).from, 0.0);
    EXPECT_GT(speed.valueRange(0).to, 3000.0);
    link.setCurrent(nullptr);
    EXPECT_EQ(waveforms.timeRange().to, 0.0);
}

// No turn is seen before the first passing and behind the last one.
TEST_F(TimeLinkTest, SpeedIsAGapWhereNoTurnIsSeen) {
    const auto source = preparePlane(rotor());
    const TimeLanes lanes = timeLanes(source);
    ASSERT_EQ(lanes.speed.size(), 1U);
    EXPECT_FALSE(lanes.speed[0].trace->valueAt(0.0));
    EXPECT_NEAR(lanes.speed[0].trace->valueAt(0.5).value(), 3000.0, 0.01);
    EXPECT_NEAR(lanes.passings.front(), 0.015, 1e-6);  // of turn 1: (1 - 0.25) / 50 s
    EXPECT_EQ(lanes.passings.size(), 50U);             // to that of turn 50, at 0.995 s
    EXPECT_TRUE(timeLanes(preparePlane(withoutKeyphasor(rotor()))).speed.empty());
}

// The last passing of 0.995 s lies before the cursor at the end; the values stand 9999 in 4000
// parts.
TEST_F(TimeLinkTest, BehindTheLastPulseTheSpeedBeforeItIsTold) {
    const TimeLanes lanes = timeLanes(preparePlane(rotor()));
    const QString title = titleOf(lanes.speed[0], 0.9999);
    EXPECT_TRUE(title.startsWith("Speed 3000 rpm, last known at 0.99")) << title.toStdString();
    EXPECT_EQ(titleOf(lanes.speed[0], 0.5), "Speed 3000 rpm");
    EXPECT_EQ(titleOf(lanes.speed[0], 0.0), "Speed rpm");  // before the first one
}

TEST_F(TimeLinkTest, ValuesHaveTheDigitsOfTheirUnitAndOfWhatTheySpan) {
    const auto lane = [](const char* unit, double factor, double mean) {
        Recording recording = rotor();
        recording.machine.unit = unit;
        for (double& x : recording.x.edit())
            x = mean + factor * x;
        return timeLanes(preparePlane(std::move(recording))).probes[0];
    };
    // X is 40 cos(turns + 90 deg) at first: 0 there, and it spans 80 times the factor.
    EXPECT_EQ(titleOf(lane("um", 1.0, 0.25), 0.0), "X 0.25 um");
    EXPECT_EQ(titleOf(lane("mm", 1e-3, 0.02), 0.0), "X 0.0200 mm");
    EXPECT_EQ(titleOf(lane("m", 1e-6, 0.0002), 0.0), "X 0.0002000 m");  // 80e-6 in hundredths: 1e-7
    EXPECT_EQ(titleOf(lane("V", 0.01, -9.8), 0.0), "X -9.800 V");
}

TEST_F(TimeLinkTest, LongRecordingIsReadThroughOnAWorker) {
    Recording recording = withoutKeyphasor(rotor(0.01));
    recording.x.edit().resize(TimeLink::LongRecording, 1.0);
    recording.y.edit().resize(TimeLink::LongRecording, 2.0);
    link.setCurrent(&add(std::move(recording)));
    EXPECT_EQ(waveforms.timeRange().to, 0.0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return waveforms.timeRange().to > 0.0; }));
    EXPECT_NEAR(waveforms.timeRange().to, 99.9999, 1e-9);
}

TEST_F(TimeLinkTest, PlaneThatGoesWhileItIsReadIsNotShown) {
    Recording recording = withoutKeyphasor(rotor(0.01));
    recording.x.edit().resize(TimeLink::LongRecording, 1.0);
    recording.y.edit().resize(TimeLink::LongRecording, 2.0);
    link.setCurrent(&add(std::move(recording)));
    link.setCurrent(nullptr);
    QTest::qWait(50);
    EXPECT_EQ(waveforms.timeRange().to, 0.0);
}

class NumberLinkTest : public BenchTest {
protected:
    void wait() {
        QSignalSpy computed(&table, &NumberTable::computed);
        ASSERT_TRUE(computed.wait());
    }

    NumberTable table;
    NumberLink link{bench_, table};
};

TEST_F(NumberLinkTest, FollowsTheShownTurns) {
    add();
    bench_.setCursor(0.5);
    wait();
    const NumberSheet& sheet = table.model().sheet();
    EXPECT_EQ(sheet.rows[5].cells[0], "80.00");  // 1X, peak to peak
    // Eight turns of 20 ms up to the last passing before 0.5 s: 0.495 s is the 25th.
    EXPECT_EQ(sheet.rows[16].cells[0], "0.3350 to 0.4950");
}

TEST_F(NumberLinkTest, TheCurrentPlaneComesFirst) {
    const auto at = [](const char* point) {
        Recording recording = rotor();
        recording.machine.point = point;
        return recording;
    };
    add(at("A"));
    Plane& second = add(at("B"));
    link.setCurrent(&second);
    wait();
    const auto& columns = table.model().sheet().columns;
    ASSERT_EQ(columns.size(), 4U);
    EXPECT_EQ(columns[0].plane, "B");
    EXPECT_EQ(columns[2].plane, "A");
}

TEST_F(NumberLinkTest, WarnsOfManualLimitsThatDifferAndMendsThem) {
    Plane& plane = add();
    AxisLimits limits{-100, 100, -50, 50, true};
    bench_.setSettings(plane, withLimits(plane, limits));
    wait();
    auto* button = table.findChild<QPushButton*>();
    table.show();
    EXPECT_TRUE(button->isVisible());
    button->click();
    EXPECT_TRUE(axisLimits(plane).areEqual());
    EXPECT_FALSE(button->isVisible());
    bench_.undoStack().undo();
    EXPECT_FALSE(axisLimits(plane).areEqual());
}

TEST_F(NumberLinkTest, TheScalesOfAllPlanesAreMendedInOneStepOfUndo) {
    for (int i = 0; i < 3; ++i) {
        Plane& plane = add();
        bench_.setSettings(plane, withLimits(plane, {-100, 100, -50, 50, true}));
    }
    const int before = bench_.undoStack().index();
    Q_EMIT table.equalSpansWanted();
    EXPECT_EQ(bench_.undoStack().index(), before + 1);
    for (const auto& plane : bench_.planes())
        EXPECT_TRUE(axisLimits(*plane).areEqual());
    bench_.undoStack().undo();
    for (const auto& plane : bench_.planes())
        EXPECT_FALSE(axisLimits(*plane).areEqual());
    Q_EMIT table.equalSpansWanted();
    Q_EMIT table.equalSpansWanted();  // they are equal already
    EXPECT_EQ(bench_.undoStack().index(), before + 1);
}

}  // namespace
}  // namespace Rotavue::Workbench
