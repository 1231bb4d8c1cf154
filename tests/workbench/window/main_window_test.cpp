#include "workbench/window/main_window.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/setup/setup_rules.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <fstream>

namespace Rotavue::Workbench {
namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, ATileForEachPlane) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    ASSERT_EQ(window_.tiles().tiles().size(), 2U);
    EXPECT_TRUE(window_.windowTitle().contains("Bearing 1, Bearing 2"));
    EXPECT_EQ(window_.currentPlane(), bench().planes()[1].get());
    action("nextPlane").trigger();
    EXPECT_EQ(window_.currentPlane(), bench().planes()[0].get());
    action("closePlane").trigger();
    EXPECT_EQ(window_.tiles().tiles().size(), 1U);
    bench().undoStack().undo();
    EXPECT_EQ(window_.tiles().tiles().size(), 2U);
}

TEST_F(MainWindowTest, ThePlaneThatIsAloneHasTheRoomOfAll) {
    for (const char* name : {"Bearing 1", "Bearing 2", "Bearing 3"})
        open(rotor(name));
    const OrbitTiles& tiles = window_.tiles();
    const QSize shared = tiles.tiles()[2]->size();
    action("planeAlone").trigger();
    settle();
    EXPECT_EQ(tiles.tiles()[2]->size(), tiles.size());
    EXPECT_GT(tiles.size().width(), shared.width());
    EXPECT_FALSE(tiles.tiles()[0]->isVisible());
    action("nextPlane").trigger();  // is the first one then, and alone
    settle();
    EXPECT_EQ(tiles.tiles()[0]->size(), tiles.size());
    EXPECT_FALSE(tiles.tiles()[2]->isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(tiles.isAlone());
    EXPECT_FALSE(action("planeAlone").isChecked());
    EXPECT_EQ(tiles.tiles()[2]->size(), shared);
}

TEST_F(MainWindowTest, EscapeEndsAloneWhereverTheFocusIs) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    for (const char* name : {"waveformDock", "numberDock", "channelDock"}) {
        auto* const dock = window_.findChild<QDockWidget*>(name);
        ASSERT_NE(dock, nullptr) << name;
        dock->raise();
        action("planeAlone").trigger();
        dock->widget()->setFocus();
        ASSERT_TRUE(window_.tiles().isAlone());
        press(Qt::Key_Escape);
        EXPECT_FALSE(window_.tiles().isAlone()) << name;
    }
}

TEST_F(MainWindowTest, ADoubleClickOnTheLineAboveAPlotGivesItTheRoomAndTakesItBack) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    OrbitTile& tile = *window_.tiles().tiles()[0];
    auto& line = *tile.findChild<QLabel*>("facts");
    QTest::mouseDClick(&line, Qt::LeftButton);
    EXPECT_TRUE(window_.tiles().isAlone());
    EXPECT_EQ(window_.currentPlane(), &tile.view().plane());
    QTest::mouseDClick(&tile.view(), Qt::LeftButton);  // is the control's
    EXPECT_TRUE(window_.tiles().isAlone());
    QTest::mouseDClick(&line, Qt::LeftButton);
    EXPECT_FALSE(window_.tiles().isAlone());
}

TEST_F(MainWindowTest, APlaneThatComesIsSeenBesideTheOneThatWasAlone) {
    open(rotor("Bearing 1"));
    open(rotor("Bearing 2"));
    window_.tiles().setAlone(true);
    open(rotor("Bearing 3"));
    EXPECT_FALSE(window_.tiles().isAlone());
    for (const OrbitTile* tile : window_.tiles().tiles())
        EXPECT_TRUE(tile->isVisible());
    bench().removePlane(*bench().planes()[2]);
    bench().removePlane(*bench().planes()[1]);
    window_.tiles().setAlone(true);  // one plane has the room already
    EXPECT_FALSE(window_.tiles().isAlone());
    EXPECT_FALSE(action("planeAlone").isEnabled());
}

TEST_F(MainWindowTest, KeysMoveTheTime) {
    OrbitView& view = open();
    view.setFocus();
    press(Qt::Key_Home);
    EXPECT_EQ(bench().cursor(), 0.0);
    press(Qt::Key_End);
    EXPECT_DOUBLE_EQ(bench().cursor(), 1.9999);
    press(Qt::Key_Left);
    // The last mark is that of turn 100, at (100 - 0.25) / 50 s.
    EXPECT_NEAR(bench().cursor(), 1.995, 1e-6);
    press(Qt::Key_Left);
    EXPECT_NEAR(bench().cursor(), 1.975, 1e-6);
    press(Qt::Key_Right);
    EXPECT_NEAR(bench().cursor(), 1.995, 1e-6);
    press(Qt::Key_PageUp);
    EXPECT_NEAR(bench().cursor(), 1.835, 1e-6);
}

TEST_F(MainWindowTest, SpacePlaysAndPauses) {
    OrbitView& view = open();
    view.setFocus();
    QSignalSpy drawn(&view, &OrbitView::drawn);
    press(Qt::Key_Space);
    EXPECT_TRUE(bench().playback().isPlaying());
    EXPECT_EQ(view.plane().state(), HostState::Acquiring);
    EXPECT_TRUE(drawn.wait());
    press(Qt::Key_Space);
    EXPECT_FALSE(bench().playback().isPlaying());
    EXPECT_EQ(view.plane().state(), HostState::Stored);
}

TEST_F(MainWindowTest, AnEditKeepsItsKeys) {
    open();
    QLineEdit edit(&window_);
    edit.show();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Space);
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClicks(&edit, "l");
    EXPECT_EQ(edit.text(), "l ");
    EXPECT_FALSE(bench().playback().isPlaying());
    EXPECT_NE(bench().cursor(), 0.0);
}

TEST_F(MainWindowTest, EveryDockHasANameAndComesBack) {
    const auto docks = window_.findChildren<QDockWidget*>();
    EXPECT_FALSE(docks.isEmpty());
    for (QDockWidget* dock : docks) {
        EXPECT_FALSE(dock->objectName().isEmpty());
        dock->close();
    }
    action("resetLayout").trigger();
    for (const QDockWidget* dock : docks)
        EXPECT_FALSE(dock->isHidden()) << dock->objectName().toStdString();
}

TEST_F(MainWindowTest, TheLayoutIsRememberedUnderItsVersion) {
    QDockWidget* dock = window_.findChildren<QDockWidget*>().front();
    dock->close();
    window_.saveLayout();
    MainWindow other(std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE));
    other.restoreLayout();
    EXPECT_TRUE(other.findChild<QDockWidget*>(dock->objectName())->isHidden());
}

TEST_F(MainWindowTest, EveryActionWithAKeySaysSo) {
    for (const QAction* one : window_.findChildren<QAction*>()) {
        if (one->shortcut().isEmpty() || one->objectName().isEmpty()) continue;
        EXPECT_TRUE(one->toolTip().contains(one->shortcut().toString(QKeySequence::NativeText)))
            << one->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, NoTwoActionsHaveOneKey) {
    std::map<QString, QString> owners;
    for (const QAction* one : window_.findChildren<QAction*>()) {
        // Keys of one dock count where that dock has the focus.
        if (one->shortcut().isEmpty() || one->shortcutContext() != Qt::WindowShortcut) continue;
        const QString key = one->shortcut().toString();
        EXPECT_EQ(owners.count(key), 0U) << key.toStdString() << ": " << one->text().toStdString()
                                         << " and " << owners[key].toStdString();
        owners[key] = one->text();
    }
}

TEST_F(MainWindowTest, ThemesReachThePlot) {
    OrbitView& view = open();
    EXPECT_EQ(pictureOf(view).pixel(1, 1), 0xFFFFFFFF);
    action("theme.dark").trigger();
    EXPECT_EQ(pictureOf(view).pixel(1, 1), 0xFF000000);
    EXPECT_TRUE(hasColor(pictureOf(view), 0xFF56B4E9));
    action("theme.light").trigger();
    EXPECT_EQ(pictureOf(view).pixel(1, 1), 0xFFFFFFFF);
}

TEST_F(MainWindowTest, ASettingIsUndoneToTheLastPixel) {
    OrbitView& view = open();
    const QImage grid = pictureOf(view);
    bench().setSettings(view.plane(), with(view.plane(), L"graphType", L"1"), "circle");
    EXPECT_GT(differences(grid, pictureOf(view)), 1000);
    bench().undoStack().undo();
    EXPECT_EQ(differences(grid, pictureOf(view)), 0);
}

TEST_F(MainWindowTest, ASavedSetupGivesTheSamePictureWhenItIsOpenedAgain) {
    OrbitView& view = open();
    bench().setSettings(view.plane(), with(view.plane(), L"graphType", L"1"));
    bench().setSettings(view.plane(), with(view.plane(), L"revolutions", L"3"));
    bench().setCursor(1.0);
    const QImage saved = pictureOf(view);

    const QTemporaryDir folder;
    const std::string file = folder.filePath("plot.xml").toStdString();
    SetupEntries entries;
    for (const auto& [key, text] : view.plane().settings())
        entries.push_back({{key.begin(), key.end()}, {text.begin(), text.end()}});
    std::ofstream(file) << setupXml(entries);

    bench().removePlane(view.plane());
    Settings read;
    for (const SetupEntry& entry : readCheckedSetup(file))
        read[{entry.key.begin(), entry.key.end()}] = {entry.text.begin(), entry.text.end()};
    OrbitView& again = open(rotor(), {.settings = read});
    bench().setCursor(1.0);
    EXPECT_EQ(differences(saved, pictureOf(again)), 0);
}

TEST_F(MainWindowTest, UnequalAxesAreToldAndMended) {
    OrbitView& view = open();
    bench().setSettings(
        view.plane(),
        withLimits(view.plane(),
                   {.xMin = -100, .xMax = 100, .yMin = -50, .yMax = 50, .manual = true}));
    settle();
    auto* scale = window_.findChild<QToolButton*>("scale");
    EXPECT_EQ(scale->text(), "x:y 1:2 - make equal");
    action("equalAxes").trigger();
    settle();
    EXPECT_EQ(scale->text(), "x:y 1:1");
    EXPECT_DOUBLE_EQ(axisLimits(view.plane()).yMax, 100.0);
}

TEST_F(MainWindowTest, ACloseCheckKeepsTheWindowOpen) {
    bool may = false;
    window_.addCloseCheck([&may] { return may; });
    window_.close();
    EXPECT_TRUE(window_.isVisible());
    may = true;
    window_.close();
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(MainWindowTest, DiagnosticsTellNoVersionThatTheyDoNotKnow) {
    EXPECT_TRUE(window_.diagnostics().startsWith("Rotavue "));
    EXPECT_FALSE(window_.diagnostics().contains("plug-in"));
}

}  // namespace
}  // namespace Rotavue::Workbench
