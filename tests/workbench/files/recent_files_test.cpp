#include "workbench/files/recent_files.h"

#include <QDir>
#include <QSettings>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class RecentFilesTest : public ScratchFolder {
protected:
    QSettings settings_{qt(at("settings.ini")), QSettings::IniFormat};
    RecentFiles recent_{settings_};
};

TEST_F(RecentFilesTest, HasTheNewestFirstAndEachOnce) {
    recent_.add("/a/1.csv");
    recent_.add("/a/2.csv");
    recent_.add("/a/../a/1.csv");
    EXPECT_EQ(recent_.files(), (QStringList{"/a/1.csv", "/a/2.csv"}));
}

TEST_F(RecentFilesTest, KeepsTen) {
    for (int i = 0; i < 12; ++i)
        recent_.add(QString("/a/%1.csv").arg(i));
    ASSERT_EQ(recent_.files().size(), 10);
    EXPECT_EQ(recent_.files().front(), "/a/11.csv");
    EXPECT_EQ(recent_.files().back(), "/a/2.csv");
}

TEST_F(RecentFilesTest, OutlivesTheProgram) {
    recent_.add("/a/1.csv");
    settings_.sync();
    QSettings again(qt(at("settings.ini")), QSettings::IniFormat);
    EXPECT_EQ(RecentFiles(again).files(), QStringList{"/a/1.csv"});
}

TEST_F(RecentFilesTest, BeginsWhereTheLastFileWasWhileThatFolderIsThere) {
    EXPECT_EQ(recent_.folder(), QDir::homePath());
    recent_.add(qt(at("r.csv")));
    EXPECT_EQ(recent_.folder(), qt(at("")).chopped(1));
    recent_.clear();
    EXPECT_TRUE(recent_.files().isEmpty());
    EXPECT_EQ(recent_.folder(), qt(at("")).chopped(1));
    recent_.add("/no/such/folder/r.csv");
    EXPECT_EQ(recent_.folder(), QDir::homePath());
}

TEST_F(RecentFilesTest, PassesOverWhatAnotherHandHasLeft) {
    settings_.setValue("files/recent", QStringList{"", "/a", "/a"} + QStringList(30, "/b"));
    EXPECT_EQ(recent_.files(), (QStringList{"/a", "/b"}));
    settings_.setValue("files/recent", 3.5);
    EXPECT_TRUE(recent_.files().isEmpty());
}

}  // namespace
}  // namespace Rotavue::Workbench
