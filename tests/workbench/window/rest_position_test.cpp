#include "tests/workbench/window/window_fixture.h"
#include "workbench/export/plane_picture.h"
#include "workbench/files/view_keeper.h"
#include "workbench/window/docks/time_plot.h"

#include <QDockWidget>
#include <QLabel>
#include <QMenu>

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

/// The rest position as a person takes it: a stretch marked by keys in the waveforms, and the menu.
class RestPositionTest : public WindowTest {
protected:
    QString factsOverThePlot() {
        settle();
        return window_.tiles().tiles()[0]->findChild<QLabel*>("facts")->text();
    }

    /// From 0.5 s to 1 s.
    void markByKeys() {
        QTest::keyClick(&window_, Qt::Key_4, Qt::AltModifier);
        bench().setCursor(0.5);
        press(Qt::Key_I);
        bench().setCursor(1.0);
        press(Qt::Key_O);
        ASSERT_TRUE(window_.markedStretch().span());
        bench().setCursor(2.0);
    }

    /// Alt+E, the letter of the entry "Shaft at rest", and that of its action.
    void chooseByMenu(Qt::Key letter) {
        QTest::keyClick(&window_, Qt::Key_E, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window_.editMenu().isVisible(); }));
        QTest::keyClick(&window_.editMenu(), Qt::Key_E);
        auto* menu = qobject_cast<QMenu*>(action("restAtBottom").associatedObjects().value(0));
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activePopupWidget() != nullptr; }));
        QTest::keyClick(menu != nullptr ? menu : QApplication::activePopupWidget(), letter);
        settle();
    }
};

TEST_F(RestPositionTest, OfTheMarkedStretchIsToldOverThePlotAndInPictures) {
    Plane& plane = open().plane();
    markByKeys();
    chooseByMenu(Qt::Key_B);
    const QString words = "rest 0.5 to 1 s at the bottom";
    EXPECT_TRUE(factsOverThePlot().endsWith(words)) << factsOverThePlot().toStdString();
    const auto strip = PlanePicture(plane, bench()).header().facts;
    EXPECT_EQ(std::count(strip.begin(), strip.end(), words.toStdString()), 1);
    bench().undoStack().undo();
    EXPECT_FALSE(factsOverThePlot().contains("rest"));
}

TEST_F(RestPositionTest, IsTakenByItsKeyAndStaysWithTheView) {
    open();
    markByKeys();
    press(Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    const View view = viewOf(bench());
    const ShaftCenterChoice& kept = view.planes.at(0).curveOptions.shaftCenter;
    EXPECT_EQ(kept.rest, RestPosition::Centre);
    ASSERT_TRUE(kept.restSpan);
    EXPECT_DOUBLE_EQ(kept.restSpan->from, 0.5);
    EXPECT_DOUBLE_EQ(kept.restSpan->to, 1.0);
    showView(bench(), view, {bench().planes()[0]->sharedOriginal()});
    EXPECT_TRUE(factsOverThePlot().endsWith("rest 0.5 to 1 s in the centre"));
}

// The mark is the window's; a plane that is closed has no rest position.
TEST_F(RestPositionTest, IsOfferedWhereThereIsAStretch) {
    EXPECT_TRUE(action("restAtBottom").toolTip().endsWith(": nothing is open"));
    open();
    EXPECT_TRUE(
        action("restAtBottom").toolTip().endsWith(": no stretch is marked in the waveforms"));
    markByKeys();
    EXPECT_TRUE(action("restAtBottom").isEnabled());
    action("closePlane").trigger();
    EXPECT_FALSE(action("restAtBottom").isEnabled());
}

}  // namespace
}  // namespace Rotavue::Workbench
