#include "workbench/files/autosave.h"

#include "tests/workbench/window/window_fixture.h"
#include "workbench/files/file_actions.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <fstream>
#include <stdexcept>

namespace Rotavue::Workbench {
namespace {

/// There before the window and gone behind it, which lets go of its lock there.
struct UnsavedFolder {
    QTemporaryDir folder_;
};

/// Windows that end as they should and windows that do not. A process that was killed leaves its
/// view and a lock that nobody holds; a view without any lock is the same to those who come later.
class AutosaveTest : protected UnsavedFolder, public WindowTest {
protected:
    AutosaveTest() { files().startAutosave(unsaved()); }

    FileActions& files() { return *window_.findChild<FileActions*>(); }
    QString unsaved() const { return folder_.filePath("unsaved"); }

    QString recording(const QString& name) const {
        const QString file = folder_.filePath(name);
        std::ofstream stream(file.toStdString());
        stream << "t [s],x [um],y [um],phi [deg]\n";
        for (int i = 0; i < 200; ++i)
            stream << i << "e-3," << i % 20 << ',' << (i + 5) % 20 << ',' << i % 20 * 18 << '\n';
        return file;
    }

    void openFiles(const QStringList& names) {
        for (const QString& name : names)
            files().open({recording(name)});
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return bench().planes().size() == static_cast<std::size_t>(names.size()); }));
    }

    /// Shows the plane as a circle, and lets that be kept.
    void changeAndKeep() {
        Plane& plane = *bench().planes().front();
        bench().setSettings(plane, with(plane, L"graphType", L"1"));
        files().autosave()->keepNow();
    }

    QStringList kept() const { return QDir(unsaved()).entryList({"*.rotavue"}, QDir::Files); }

    /// As a killed process leaves it: the view stays, and nobody holds its lock.
    void leaveBehind() {
        ASSERT_EQ(kept().size(), 1);
        ASSERT_TRUE(QFile::copy(unsaved() + '/' + kept().front(), unsaved() + "/killed.rotavue"));
    }
};

/// The next start of the program.
struct NextWindow {
    explicit NextWindow(const QString& unsaved) {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        files().startAutosave(unsaved);
    }

    FileActions& files() { return *window.findChild<FileActions*>(); }
    bool offers() { return window.findChild<OfferBar*>()->isVisible(); }
    void press(const char* button) {
        auto* found = window.findChild<QPushButton*>(button);
        found->setFocus();
        QTest::keyClick(found, Qt::Key_Space);
    }

    MainWindow window{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
};

TEST_F(AutosaveTest, ChangesAreKeptAndDroppedWhenTheyAreSaved) {
    openFiles({"a.csv"});
    files().autosave()->keepNow();
    EXPECT_TRUE(kept().isEmpty());
    changeAndKeep();
    EXPECT_EQ(kept().size(), 1);
    ASSERT_TRUE(files().saveTo(folder_.filePath("a.rotavue")));
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, WhatIsUndoneIsNotKept) {
    openFiles({"a.csv"});
    changeAndKeep();
    bench().undoStack().undo();
    files().autosave()->keepNow();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(AutosaveTest, ACrashIsOfferedAtTheNextStartAndRestored) {
    openFiles({"a.csv", "b.csv"});
    changeAndKeep();
    leaveBehind();
    NextWindow next(unsaved());
    ASSERT_TRUE(next.offers());
    next.press("offerYes");
    Bench& bench = next.window.bench();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bench.planes().size() == 2; }));
    EXPECT_EQ(bench.planes()[0]->name(), "a");
    EXPECT_EQ(bench.planes()[0]->settings().at(L"graphType"), L"1");
    EXPECT_FALSE(bench.undoStack().isClean());
    EXPECT_EQ(next.files().viewFile(), "");
    EXPECT_FALSE(next.offers());
    EXPECT_FALSE(kept().contains("killed.rotavue"));
}

TEST_F(AutosaveTest, WhatIsDiscardedIsNotOfferedAgain) {
    openFiles({"a.csv"});
    changeAndKeep();
    leaveBehind();
    {
        NextWindow next(unsaved());
        next.press("offerNo");
        EXPECT_TRUE(next.window.bench().planes().empty());
    }
    NextWindow afterThat(unsaved());
    EXPECT_FALSE(afterThat.offers());
}

TEST_F(AutosaveTest, AWindowThatLivesKeepsItsOwn) {
    openFiles({"a.csv"});
    changeAndKeep();
    NextWindow other(unsaved());
    EXPECT_FALSE(other.offers());
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(AutosaveTest, TwoWindowsAreNotOfferedTheSameView) {
    openFiles({"a.csv"});
    changeAndKeep();
    leaveBehind();
    NextWindow first(unsaved());
    NextWindow second(unsaved());
    EXPECT_TRUE(first.offers());
    EXPECT_FALSE(second.offers());
}

TEST_F(AutosaveTest, ARecordingThatIsGoneIsToldAndTheRestIsRestored) {
    openFiles({"a.csv", "b.csv"});
    changeAndKeep();
    leaveBehind();
    QFile::remove(folder_.filePath("a.csv"));
    NextWindow next(unsaved());
    next.press("offerYes");
    Bench& bench = next.window.bench();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bench.planes().size() == 1; }));
    EXPECT_EQ(bench.planes()[0]->name(), "b");
    EXPECT_TRUE(next.files().messages().lines().join('\n').contains("a.csv: found no such file"));
    // It may come back; so does the offer.
    EXPECT_TRUE(kept().contains("killed.rotavue"));
}

TEST_F(AutosaveTest, ADamagedViewIsToldAndTheWindowGoesOn) {
    QDir().mkpath(unsaved());
    std::ofstream((unsaved() + "/killed.rotavue").toStdString()) << "{\"rotavueView\": 1";
    NextWindow next(unsaved());
    ASSERT_TRUE(next.offers());
    next.press("offerYes");
    EXPECT_FALSE(next.files().messages().lines().isEmpty());
    EXPECT_TRUE(next.window.bench().planes().empty());
}

TEST_F(AutosaveTest, AnOrderlyEndLeavesNothing) {
    {
        NextWindow one(unsaved());
        one.files().open({recording("a.csv")});
        Bench& bench = one.window.bench();
        ASSERT_TRUE(QTest::qWaitFor([&] { return bench.planes().size() == 1; }));
        bench.removePlane(*bench.planes().front());
        one.files().autosave()->keepNow();
        EXPECT_EQ(kept().size(), 1);
    }
    EXPECT_TRUE(QDir(unsaved()).entryList(QDir::Files).isEmpty());
}

TEST_F(AutosaveTest, AWindowThatAnExceptionEndsLeavesItsView) {
    openFiles({"a.csv"});
    try {
        NextWindow one(unsaved());
        one.files().open({recording("b.csv")});
        Bench& bench = one.window.bench();
        ASSERT_TRUE(QTest::qWaitFor([&] { return bench.planes().size() == 1; }));
        bench.setSettings(*bench.planes()[0], with(*bench.planes()[0], L"graphType", L"1"));
        one.files().autosave()->keepNow();
        ASSERT_EQ(kept().size(), 1);
        throw std::runtime_error("out of the event loop");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(kept().size(), 1);
    NextWindow next(unsaved());
    EXPECT_TRUE(next.offers());
}

}  // namespace
}  // namespace Rotavue::Workbench
