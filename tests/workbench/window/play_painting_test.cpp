#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/docks/number_table.h"
#include "workbench/window/steady_label.h"

#include <QDockWidget>
#include <QEvent>
#include <QSignalSpy>
#include <QTest>

#include <map>

namespace Rotavue::Workbench {
namespace {

/// Counts what the widgets of the program get of that kind of event, while it lives.
class EventCount final : public QObject {
public:
    explicit EventCount(QEvent::Type type) : type_(type) { qApp->installEventFilter(this); }

    int of(const QObject& receiver) const {
        const auto found = counts_.find(&receiver);
        return found != counts_.end() ? found->second : 0;
    }

    int within(const QWidget& widget) const {
        int sum = of(widget);
        for (const QWidget* child : widget.findChildren<QWidget*>())
            sum += of(*child);
        return sum;
    }

private:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == type_) ++counts_[receiver];
        return false;
    }

    QEvent::Type type_;
    std::map<const QObject*, int> counts_;
};

// Two planes of a run-up from 3000 to 3600 rpm, every dock shown, at play.
class PlayPainting : public WindowTest {
protected:
    PlayPainting() {
        open(runUp("Bearing 1"));
        open(runUp("Bearing 2"));
        for (QDockWidget* dock : window_.findChildren<QDockWidget*>())
            dock->show();
        bench().setCursor(0.5);
        settle();
        waitForNumbers();
        bench().playback().play();
        moment();
    }

    /// Until those of the cursor stand, which come from another thread: none is on its way any
    /// more.
    void waitForNumbers() {
        constexpr int MoreThanOneTakes = 250;
        auto& table = *window_.findChild<NumberTable*>();
        const QSignalSpy computed(&table, &NumberTable::computed);
        for (qsizetype seen = -1; seen != computed.count();) {
            seen = computed.count();
            QTest::qWait(MoreThanOneTakes);
        }
        EXPECT_EQ(table.model().columnCount(), 4);
    }

    static Recording runUp(const std::string& point) {
        Recording recording = generate({.duration = 2.0,
                                        .lastSpeed = 3600.0,
                                        .orders = {{.order = 1.0, .x = {40, 0}, .y = {30, 90}}}});
        recording.machine.point = point;
        return recording;
    }

    /// A thirtieth of a second passes, and the screen wants its picture.
    void moment() {
        bench().playback().advance(1.0 / 30.0);
        QApplication::sendPostedEvents();
        QEvent request(QEvent::UpdateRequest);
        QApplication::sendEvent(&window_, &request);
    }

    QWidget& named(const char* name) {
        auto* found = window_.findChild<QWidget*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    QString factsOfFirst() {
        return window_.tiles().tiles()[0]->findChild<QLabel*>("facts")->text();
    }
};

TEST_F(PlayPainting, EachMomentPaintsWhatMovesOnce) {
    const EventCount paints(QEvent::Paint);
    for (int i = 0; i < 3; ++i)
        moment();
    for (OrbitTile* tile : window_.tiles().tiles())
        EXPECT_EQ(paints.of(tile->view()), 3);
    for (const char* moving : {"waveformPlot", "timeSlider", "place"})
        EXPECT_EQ(paints.of(named(moving)), 3) << moving;
}

TEST_F(PlayPainting, WhatStandsIsNotPainted) {
    const EventCount paints(QEvent::Paint);
    for (int i = 0; i < 3; ++i)
        moment();
    for (const char* standing : {"channelDock", "propertyDock", "numberDock"})
        EXPECT_EQ(paints.within(named(standing)), 0) << standing;
    EXPECT_EQ(paints.of(named("waveformDock")), 0);  // what is behind the plot
}

// The window answers what play has changed for a few moments; facts are told at the eighth.
TEST_F(PlayPainting, NothingIsLaidOutAnew) {
    for (int i = 0; i < 3; ++i)
        moment();
    const EventCount layouts(QEvent::LayoutRequest);
    for (int i = 0; i < 3; ++i)
        moment();
    EXPECT_EQ(layouts.within(window_), 0);
}

// The speed grows by 10 rpm in a thirtieth of a second: each frame has facts of its own.
TEST_F(PlayPainting, FactsFollowEveryEighthFrame) {
    int changes = 0;
    for (int i = 0; i < 16; ++i) {
        const QString before = factsOfFirst();
        moment();
        changes += factsOfFirst() != before ? 1 : 0;
    }
    EXPECT_EQ(changes, 2);
}

TEST_F(PlayPainting, APauseTellsTheFactsOfItsMoment) {
    moment();
    const Plane& plane = *bench().planes()[0];
    EXPECT_NE(factsOfFirst(), factsOf(plane));
    bench().playback().pause();
    EXPECT_TRUE(QTest::qWaitFor([&] { return factsOfFirst() == factsOf(plane); }));
}

TEST(SteadyLabel, GivesNoRoomBack) {
    SteadyLabel label;
    label.tell("0.5 of 2 s");
    const QSize room = label.minimumSize();
    EXPECT_GE(room.width(), label.fontMetrics().horizontalAdvance("0.5 of 2 s"));
    label.tell("0");
    EXPECT_EQ(label.text(), "0");
    EXPECT_EQ(label.minimumSize(), room);
    EXPECT_EQ(label.maximumSize(), room);
}

TEST(SteadyLabel, TakesWhatALongerTextNeeds) {
    SteadyLabel label;
    label.tell("0");
    label.tell("10.25 of 12 s");
    EXPECT_GE(label.minimumWidth(), label.fontMetrics().horizontalAdvance("10.25 of 12 s"));
}

TEST(SteadyLabel, FollowsItsFont) {
    SteadyLabel label;
    label.tell("0.5 of 2 s");
    const QSize room = label.minimumSize();
    QFont larger = label.font();
    larger.setPointSizeF(2.0 * larger.pointSizeF());
    label.setFont(larger);
    EXPECT_GT(label.minimumWidth(), room.width());
    EXPECT_GT(label.minimumHeight(), room.height());
}

}  // namespace
}  // namespace Rotavue::Workbench
