#include "workbench/files/file_actions.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/workbench/files/file_actions_fixture.h"

namespace Rotavue::Workbench {
namespace {

TEST_F(FileActionsTest, OpensRecordingsWithoutAskingWhereNamesTellAll) {
    open({recording("a.csv"), recording("b.csv")});
    EXPECT_EQ(planes(), (QStringList{"a", "b"}));
    EXPECT_EQ(told(), "");
    EXPECT_FALSE(isChanged());
}

TEST_F(FileActionsTest, TellsFaultsInTheBarAndOpensTheRest) {
    const QString bad = qt(write("bad.csv", "t,x,y\n0,1,2\n1,a,3\n"));
    open({bad, recording("b.csv"), qt(at("none.csv"))});
    EXPECT_EQ(planes(), QStringList{"b"});
    EXPECT_NE(told().find("bad.csv:3:3: found \"a\" in column \"x\", allowed: a number"),
              std::string::npos);
    EXPECT_NE(told().find("none.csv: found no such file"), std::string::npos);
}

TEST_F(FileActionsTest, TakesWhatIsDroppedOnTheWindow) {
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(recording("a.csv")), QUrl("http://host/b.csv")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    wait();
    EXPECT_EQ(planes(), QStringList{"a"});
}

TEST_F(FileActionsTest, RefusesDroppedText) {
    QMimeData dropped;
    dropped.setText("a.csv");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(window_.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(FileActionsTest, RecentFilesAreOfferedGreyedWhenTheyAreGoneAndCleared) {
    open({recording("a.csv"), recording("b.csv")});
    std::filesystem::remove(at("a.csv"));
    restart();
    const auto actions = recent().actions();
    // Two files, a line and "clear".
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->text(), "&1  b.csv");
    EXPECT_TRUE(actions[0]->isEnabled());
    EXPECT_EQ(actions[1]->text(), "&2  a.csv");
    EXPECT_FALSE(actions[1]->isEnabled());
    actions[0]->trigger();
    wait();
    EXPECT_EQ(planes(), QStringList{"b"});
    actions[3]->trigger();
    EXPECT_EQ(recent().actions().size(), 1);
}

TEST_F(FileActionsTest, ItsActionsComeFirstInTheMenuWithTheirKeys) {
    const auto actions = menu_->actions();
    ASSERT_EQ(actions.size(), 7);
    EXPECT_EQ(actions[0]->objectName(), "newView");
    EXPECT_EQ(actions[0]->shortcut(), QKeySequence(QKeySequence::New));
    EXPECT_EQ(actions[1]->objectName(), "open");
    EXPECT_EQ(actions[1]->shortcut(), QKeySequence(QKeySequence::Open));
    EXPECT_EQ(actions[4]->objectName(), "saveView");
    EXPECT_EQ(actions[4]->shortcut(), QKeySequence(QKeySequence::Save));
    EXPECT_EQ(actions[6]->text(), "Quit");
}

TEST_F(FileActionsTest, ControlsBeginWithTheSettingsOfTheStart) {
    files_->setFirstSettings(Settings{{L"graphType", L"1"}});
    open({recording("a.csv")});
    EXPECT_TRUE(isCircle(0));
}

}  // namespace
}  // namespace Rotavue::Workbench
