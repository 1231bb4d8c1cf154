#include "tests/workbench/window/window_fixture.h"
#include "workbench/window/docks/time_plot.h"

#include <QDockWidget>
#include <QInputDialog>
#include <QTabWidget>
#include <QTreeWidget>

namespace Rotavue::Workbench {
namespace {

/// Keys where a person presses them: in the window as it is, with the keyboard in one of its parts.
class WindowKeysTest : public WindowTest {
protected:
    template <class Part>
    Part& focused() {
        auto* part = window_.findChild<Part*>();
        part->setFocus();
        EXPECT_TRUE(part->hasFocus());
        return *part;
    }

    static void press(QWidget& part, Qt::Key key) {
        QTest::keyClick(&part, key);
        settle();
    }

    double speedAfter(QWidget& part, Qt::Key key) {
        press(part, key);
        return bench().playback().speed();
    }
};

TEST_F(WindowKeysTest, InsertAsksForOrdersInTheTree) {
    open();
    auto& tree = focused<QTreeWidget>();
    tree.setCurrentItem(tree.topLevelItem(0)->child(0));
    press(tree, Qt::Key_Insert);
    auto* dialog = window_.findChild<QInputDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setTextValue("2");
    dialog->accept();
    settle();
    EXPECT_EQ(bench().planes()[0]->curves().size(), 2U);
}

TEST_F(WindowKeysTest, DeleteTakesACurveOfTheTreeAway) {
    open(rotor(), {.curves = {{}, {.kind = CurveKind::Harmonic, .orders = {2.0}}}});
    auto& tree = focused<QTreeWidget>();
    for (int i = 0; i < tree.topLevelItem(0)->childCount(); ++i)
        if (tree.topLevelItem(0)->child(i)->text(0) == "2X")
            tree.setCurrentItem(tree.topLevelItem(0)->child(i));
    press(tree, Qt::Key_Delete);
    EXPECT_EQ(bench().planes()[0]->curves(), std::vector<CurveRequest>{CurveRequest{}});
}

TEST_F(WindowKeysTest, ATreeMovesWithTheArrowsAndTheTimeStands) {
    open();
    const double before = bench().cursor();
    auto& tree = focused<QTreeWidget>();
    tree.setCurrentItem(tree.topLevelItem(0));
    press(tree, Qt::Key_Down);
    EXPECT_NE(tree.currentItem(), tree.topLevelItem(0));
    press(tree, Qt::Key_Home);
    EXPECT_EQ(bench().cursor(), before);
}

TEST_F(WindowKeysTest, PagesOfPropertiesAreTurnedWithTheArrowsAndTheTimeStands) {
    open();
    const double before = bench().cursor();
    auto* pages = window_.findChild<QDockWidget*>("propertyDock")->findChild<QTabWidget*>();
    pages->tabBar()->setFocus();
    press(*pages->tabBar(), Qt::Key_Right);
    EXPECT_EQ(pages->currentIndex(), 1);
    press(*pages->tabBar(), Qt::Key_Left);
    EXPECT_EQ(pages->currentIndex(), 0);
    EXPECT_EQ(bench().cursor(), before);
}

TEST_F(WindowKeysTest, PagesOfPropertiesAreTurnedByKeysAloneForEachOfTwoPlanes) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    auto* dock = window_.findChild<QDockWidget*>("propertyDock");
    for (int plane = 0; plane < 2; ++plane) {
        QTest::keyClick(&window_, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
        settle();
        auto* pages = dock->findChild<QTabWidget*>();
        for (int i = 0; i < 20 && !pages->tabBar()->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(pages->tabBar()->hasFocus());
        pages->setCurrentIndex(0);
        press(*pages->tabBar(), Qt::Key_Right);
        EXPECT_EQ(pages->currentIndex(), 1) << plane;
        EXPECT_EQ(window_.currentPlane(), bench().planes()[static_cast<std::size_t>(plane)].get());
    }
}

TEST_F(WindowKeysTest, BracketsChangeTheSpeedWhereverTheKeyboardIs) {
    open();
    auto& tree = focused<QTreeWidget>();
    const double usual = bench().playback().speed();
    const double slower = speedAfter(tree, Qt::Key_BracketLeft);
    EXPECT_LT(slower, usual);
    auto& plot = focused<TimePlot>();
    EXPECT_EQ(speedAfter(plot, Qt::Key_BracketRight), usual);
}

TEST_F(WindowKeysTest, PagesOfTurnsAreTurnedFromAPlotOverTime) {
    open();
    press(focused<TimePlot>(), Qt::Key_PageUp);
    // The eighth mark from the end: the last is at (100 - 0.25) / 50 s, and a turn takes 20 ms.
    EXPECT_NEAR(bench().cursor(), 1.995 - 7 * 0.02, 1e-6);
}

}  // namespace
}  // namespace Rotavue::Workbench
