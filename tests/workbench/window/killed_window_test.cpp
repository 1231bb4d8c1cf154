#include "tests/workbench/window/window_fixture.h"
#include "workbench/files/file_actions.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <fstream>

namespace Rotavue::Workbench {
namespace {

/// Windows of another process that end as they should not.
class KilledWindowTest : public testing::Test {
protected:
    KilledWindowTest() {
        std::ofstream stream(recording().toStdString());
        stream << "t [s],x [um],y [um],phi [deg]\n";
        for (int i = 0; i < 200; ++i)
            stream << i << "e-3," << i % 20 << ',' << (i + 5) % 20 << ',' << i % 20 * 18 << '\n';
    }

    QString recording() const { return folder_.filePath("pump.csv"); }
    QString unsaved() const { return folder_.filePath("unsaved"); }

    static void start(QProcess& driver, const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        driver.setProcessEnvironment(environment);
        driver.start(ROTAVUE_WINDOW_DRIVER, arguments);
    }

    /// A window that keeps what is changed, without a pause, and is killed so much later.
    void keepAndKill(int milliseconds) {
        QProcess driver;
        start(driver, {"keep", recording(), unsaved()});
        QByteArray said;
        while (!said.contains("kept") && driver.waitForReadyRead(20'000))
            said += driver.readAllStandardOutput();
        ASSERT_TRUE(said.contains("kept"));
        QTest::qSleep(milliseconds);
        ASSERT_EQ(driver.state(), QProcess::Running);
        driver.kill();  // the signal that nobody can catch
        ASSERT_TRUE(driver.waitForFinished());
        ASSERT_EQ(driver.exitStatus(), QProcess::CrashExit);
    }

    QTemporaryDir folder_;
};

/// The next start of the program, which restores what it is offered.
struct RestoredWindow {
    explicit RestoredWindow(const QString& unsaved) {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        files().startAutosave(unsaved);
        EXPECT_TRUE(window.findChild<OfferBar*>()->isVisible());
        window.findChild<QPushButton*>("offerYes")->click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window.bench().planes().empty(); }));
    }

    FileActions& files() { return *window.findChild<FileActions*>(); }

    MainWindow window{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
};

TEST_F(KilledWindowTest, WhatWasKeptIsOfferedWholeWheneverItIsKilled) {
    for (const int milliseconds : {0, 3, 7, 20, 50}) {
        ASSERT_NO_FATAL_FAILURE(keepAndKill(milliseconds));
        RestoredWindow next(unsaved());
        ASSERT_EQ(next.window.bench().planes().size(), 1U);
        EXPECT_EQ(next.window.bench().planes()[0]->settings().at(L"graphType"), L"1");
        EXPECT_TRUE(next.files().messages().lines().isEmpty());
    }
    EXPECT_TRUE(QDir(unsaved()).entryList(QDir::Files).isEmpty());
}

TEST_F(KilledWindowTest, WhatIsRestoredHasANameAndIsAskedForAPlace) {
    ASSERT_NO_FATAL_FAILURE(keepAndKill(0));
    RestoredWindow next(unsaved());
    EXPECT_EQ(next.window.windowTitle(), "[*]Recovered pump - Rotavue");
    EXPECT_TRUE(next.window.isWindowModified());
    EXPECT_EQ(next.files().viewFile(), "");
    QString offered;
    QTimer::singleShot(0, [&offered] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        offered = dialog->findChild<QLineEdit*>("fileNameEdit")->text();
        dialog->reject();
    });
    next.window.findChild<QAction*>("saveView")->trigger();
    EXPECT_EQ(offered, "Recovered pump.rotavue");
    EXPECT_TRUE(next.window.isWindowModified());
    ASSERT_TRUE(next.files().saveTo(folder_.filePath("mine.rotavue")));
    EXPECT_EQ(next.window.windowTitle(), "[*]mine.rotavue - Rotavue");
}

// By its other name the old picture is still whole: the new one was written beside it.
TEST_F(KilledWindowTest, AScreenshotIsWrittenBesideAndRenamed) {
    const QString file = folder_.filePath("window.png");
    std::ofstream(file.toStdString()) << "old";
    std::filesystem::create_hard_link(file.toStdString(),
                                      folder_.filePath("old.png").toStdString());
    QProcess driver;
    start(driver, {"screenshot", file});
    ASSERT_TRUE(driver.waitForFinished());
    EXPECT_EQ(driver.exitCode(), 0);
    EXPECT_FALSE(QImage(file).isNull());
    QFile old(folder_.filePath("old.png"));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
}

}  // namespace
}  // namespace Rotavue::Workbench
