#include "workbench/files/file_actions.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/files/import_dialog.h"

namespace Rotavue::Workbench {
namespace {

// A window with a File menu and a bench, as a person has them.
class FileActionsTest : public ScratchFolder {
protected:
    FileActionsTest() { begin(); }

    // As if the program had been started again.
    void begin() {
        settings_ = std::make_unique<QSettings>(qt(at("settings.ini")), QSettings::IniFormat);
        bench_ = std::make_unique<Bench>(module_);
        window_ = std::make_unique<QMainWindow>();
        menu_ = window_->menuBar()->addMenu("File");
        menu_->addAction("Quit");
        files_ = new FileActions(*bench_, *window_, *menu_, *settings_);
    }
    void restart() {
        window_.reset();
        bench_.reset();
        settings_.reset();
        begin();
    }

    QString recording(std::string_view name) const {
        std::string text = "t [s],x [um],y [um],phi [deg]\n";
        for (int i = 0; i < 200; ++i)
            text += std::to_string(i) + "e-3," + std::to_string(i % 20) + ',' +
                    std::to_string((i + 5) % 20) + ',' + std::to_string(i % 20 * 18) + '\n';
        return qt(write(name, text));
    }
    void open(const QStringList& files) {
        files_->open(files);
        wait();
    }
    void wait() {
        QEventLoop loop;
        QObject::connect(&files_->loader(), &RecordingLoader::idle, &loop, &QEventLoop::quit);
        if (files_->loader().isLoading()) loop.exec();
    }
    std::string told() const { return files_->messages().lines().join('\n').toStdString(); }
    QStringList planes() const {
        QStringList names;
        for (const auto& plane : bench_->planes())
            names.append(QString::fromStdString(plane->name()));
        return names;
    }
    void circle() {
        Settings settings = bench_->planes().front()->settings();
        settings[L"graphType"] = L"1";
        bench_->setSettings(*bench_->planes().front(), settings);
    }
    void takeOff(const RunOutSource& runOut) {
        Plane& plane = *bench_->planes()[0];
        bench_->showCompensated(plane, withoutRunOut(plane.sharedOriginal(), runOut,
                                                     findRunOut(plane.original(), runOut)));
    }
    bool isChanged() const { return !bench_->undoStack().isClean(); }
    // What the control itself says; a key that it leaves out has the default, the grid.
    bool isCircle(std::size_t plane) {
        const Settings settings = bench_->planes()[plane]->control().save();
        const auto found = settings.find(L"graphType");
        return found != settings.end() && found->second == L"1";
    }
    // Answers the question that the next action asks.
    void answerWith(QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [button] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(question);
            question->button(button)->click();
        });
    }
    // Answers a question that comes by itself; false where none comes.
    static bool answersWhenAsked(QMessageBox::StandardButton button) {
        bool isAnswered = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question == nullptr) return;
            isAnswered = true;
            question->button(button)->click();
        });
        timer.start(1);
        return QTest::qWaitFor([&] { return isAnswered; });
    }
    QMenu& recent() {
        auto* menu = menu_->findChild<QMenu*>("recentMenu");
        Q_EMIT menu->aboutToShow();
        return *menu;
    }

    std::shared_ptr<HostKit::Module> module_ =
        std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE);
    std::unique_ptr<QSettings> settings_;
    std::unique_ptr<Bench> bench_;
    std::unique_ptr<QMainWindow> window_;
    QMenu* menu_ = nullptr;
    FileActions* files_ = nullptr;
};

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

TEST_F(FileActionsTest, SavedViewOpensAsItWas) {
    open({recording("a.csv"), recording("b.csv")});
    circle();
    bench_->setCurves(*bench_->planes()[1], {{CurveKind::Raw}, {CurveKind::Harmonic, {1.0, 2.0}}});
    bench_->setCursor(0.125);
    EXPECT_TRUE(isChanged());
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(files_->viewFile(), qt(at("v.rotavue")));
    restart();
    open({qt(at("v.rotavue"))});
    ASSERT_EQ(told(), "");
    ASSERT_EQ(planes(), (QStringList{"a", "b"}));
    EXPECT_TRUE(isCircle(0));
    EXPECT_FALSE(isCircle(1));
    EXPECT_EQ(bench_->planes()[1]->curves().size(), 2u);
    EXPECT_EQ(bench_->planes()[1]->curves()[1].orders, (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(bench_->cursor(), 0.125);
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(bench_->undoStack().canUndo());
    EXPECT_EQ(files_->viewFile(), qt(at("v.rotavue")));
}

TEST_F(FileActionsTest, DamagedViewIsRefusedInOneLineAndChangesNothing) {
    open({recording("a.csv")});
    const QString view = qt(write("v.rotavue", R"({"rotavueView": 1, "planes": 3})"));
    open({view});
    EXPECT_EQ(told(),
              at("v.rotavue").string() + ": found 3 at /planes, allowed: a list of 0 to 64");
    EXPECT_EQ(planes(), QStringList{"a"});
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(FileActionsTest, ViewWhoseRecordingIsGoneChangesNothing) {
    open({recording("a.csv"), recording("b.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    std::filesystem::remove(at("a.csv"));
    restart();
    open({recording("c.csv")});
    open({qt(at("v.rotavue"))});
    EXPECT_EQ(told(),
              at("a.csv").string() + ": found no such file, allowed: a file that can be read");
    EXPECT_EQ(planes(), QStringList{"c"});
    EXPECT_EQ(files_->viewFile(), "");
    open({recording("a.csv"), qt(at("v.rotavue"))});
    EXPECT_EQ(planes(), (QStringList{"a", "b"}));
}

TEST_F(FileActionsTest, ViewTakesThePlaceOfWhatIsShown) {
    ASSERT_TRUE(files_->saveTo(qt(at("empty.rotavue"))));
    restart();
    open({recording("a.csv")});
    open({qt(at("empty.rotavue"))});
    EXPECT_TRUE(planes().isEmpty());
}

TEST_F(FileActionsTest, AsksBeforeChangesAreLost) {
    open({recording("a.csv")});
    window_->show();
    circle();
    answerWith(QMessageBox::Cancel);
    EXPECT_FALSE(files_->mayLoseChanges());
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    EXPECT_EQ(readView(at("v.rotavue")).planes[0].setup.count("graphType"), 1u);
    bench_->undoStack().undo();
    EXPECT_TRUE(isChanged());
    answerWith(QMessageBox::Save);
    EXPECT_TRUE(files_->mayLoseChanges());
    EXPECT_EQ(readView(at("v.rotavue")).planes[0].setup.count("graphType"), 0u);
}

TEST_F(FileActionsTest, DiscardedChangesAreLost) {
    open({recording("a.csv")});
    window_->show();
    circle();
    answerWith(QMessageBox::Discard);
    EXPECT_TRUE(files_->mayLoseChanges());
}

TEST_F(FileActionsTest, AsksNothingWhereNothingHasChanged) {
    open({recording("a.csv")});
    window_->show();
    EXPECT_TRUE(files_->mayLoseChanges());
}

TEST_F(FileActionsTest, ViewThatCannotBeWrittenIsToldAndStaysChanged) {
    open({recording("a.csv")});
    circle();
    EXPECT_FALSE(files_->saveTo(qt(at("none/v.rotavue"))));
    EXPECT_EQ(told(), at("none/v.rotavue").string() +
                          ": found \"No such file or directory\", allowed: a file to write to");
    EXPECT_TRUE(isChanged());
}

TEST_F(FileActionsTest, CompensationGoesIntoTheViewAndBack) {
    open({recording("a.csv")});
    takeOff({.form = CompensationForm::Waveform, .span = {0.0, 0.15}});
    const std::vector<double> left = bench_->planes()[0]->shown().recording.x;
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    restart();
    open({qt(at("v.rotavue"))});
    ASSERT_EQ(told(), "");
    const Plane& plane = *bench_->planes()[0];
    EXPECT_EQ(plane.compensation(), "run-out compensated: waveform");
    EXPECT_EQ(plane.shown().recording.x, left);
    EXPECT_NE(plane.original().recording.x, left);
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(bench_->undoStack().canUndo());
}

TEST_F(FileActionsTest, ViewThatIsSavedAtOnceKeepsItsCompensation) {
    open({recording("a.csv"), recording("slow.csv")});
    takeOff({.slowRoll = at("slow.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    restart();
    QObject::connect(bench_.get(), &Bench::planesChanged,
                     [&] { writeView(at("w.rotavue"), viewOf(*bench_)); });
    open({qt(at("v.rotavue"))});
    const auto kept = readView(at("w.rotavue")).planes[0].compensation;
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->form, CompensationForm::Vector);
    EXPECT_EQ(kept->slowRoll, at("slow.csv"));
    EXPECT_FALSE(readView(at("w.rotavue")).planes[1].compensation);
}

TEST_F(FileActionsTest, ViewWhoseSlowRollIsGoneIsNotShownWithRunOut) {
    open({recording("a.csv"), recording("slow.csv")});
    takeOff({.slowRoll = at("slow.csv")});
    bench_->removePlane(*bench_->planes()[1]);
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    std::filesystem::remove(at("slow.csv"));
    restart();
    open({qt(at("v.rotavue"))});
    EXPECT_EQ(told(),
              at("slow.csv").string() + ": found no such file, allowed: a file that can be read");
    EXPECT_TRUE(planes().isEmpty());
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(FileActionsTest, ViewWhoseRunOutCannotBeFoundSaysInWhichRecording) {
    open({recording("a.csv")});
    // There is no whole turn in 5 ms: a turn takes 20 samples at 1 kHz.
    write("v.rotavue",
          R"({"rotavueView": 1, "planes": [{"recording": "a.csv", "curves": [{"kind": "raw"}],
              "setup": {}, "compensation": {"form": "vector", "span": [0.005, 0.01]}}]})");
    open({qt(at("v.rotavue"))});
    EXPECT_EQ(told(), at("a.csv").string() +
                          ": the run-out needs a whole turn of the shaft, and there is none "
                          "between 0.005 s and 0.01 s");
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(FileActionsTest, ViewWithAPlaneThatCannotBeMadeChangesNothing) {
    recording("a.csv");
    recording("b.csv");
    open({recording("c.csv")});
    // The first plane can be had; of the second one the control cannot read a setting.
    const QString view = qt(write("v.rotavue", R"({"rotavueView": 1, "planes": [
        {"recording": "a.csv", "curves": [{"kind": "raw"}], "setup": {}},
        {"recording": "b.csv", "curves": [{"kind": "raw"}], "setup": {"revolutions": "many"}}]})"));
    open({view});
    EXPECT_NE(told(), "");
    EXPECT_EQ(planes(), QStringList{"c"});
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(FileActionsTest, ChangesThatAreMadeWhileAViewLoadsAreAskedFor) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    window_->show();
    for (const auto button : {QMessageBox::Cancel, QMessageBox::Discard}) {
        files_->open({qt(at("v.rotavue"))});
        circle();
        EXPECT_TRUE(answersWhenAsked(button));
        EXPECT_EQ(isCircle(0), button == QMessageBox::Cancel);
        EXPECT_EQ(isChanged(), button == QMessageBox::Cancel);
        ASSERT_TRUE(files_->saveTo(qt(at("w.rotavue"))));
    }
}

TEST_F(FileActionsTest, ChangesThatItsUserHasGivenUpAreAskedForOnce) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    window_->show();
    circle();
    answerWith(QMessageBox::Discard);
    open({qt(at("v.rotavue"))});
    EXPECT_FALSE(isCircle(0));
    EXPECT_FALSE(isChanged());
}

TEST_F(FileActionsTest, AnotherViewOpensAtOnceAfterACancel) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("a.rotavue"))));
    open({recording("b.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("b.rotavue"))));
    for (const char* first : {"a.rotavue", "b.rotavue"}) {
        restart();
        files_->open({qt(at(first))});
        files_->loader().cancel();
        open({qt(at("b.rotavue"))});
        EXPECT_EQ(told(), "");
        EXPECT_EQ(planes(), (QStringList{"a", "b"}));
    }
}

TEST_F(FileActionsTest, RecordingsOpenEvenIfTheViewBeforeThemDoesNot) {
    open({recording("a.csv"), recording("b.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    std::filesystem::remove(at("a.csv"));
    restart();
    files_->open({qt(at("v.rotavue"))});
    open({recording("c.csv")});
    EXPECT_EQ(planes(), QStringList{"c"});
}

TEST_F(FileActionsTest, NewViewLeavesTheViewAndItsFile) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    menu_->actions()[0]->trigger();
    EXPECT_TRUE(planes().isEmpty());
    EXPECT_EQ(files_->viewFile(), "");
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(bench_->undoStack().canUndo());
    EXPECT_EQ(readView(at("v.rotavue")).planes.size(), 1u);
}

TEST_F(FileActionsTest, NewViewAsksBeforeChangesAreLost) {
    open({recording("a.csv")});
    window_->show();
    circle();
    answerWith(QMessageBox::Cancel);
    menu_->actions()[0]->trigger();
    EXPECT_EQ(planes(), QStringList{"a"});
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

// Recordings that somebody has to explain.
class ImportTest : public FileActionsTest {
protected:
    QString unclear(std::string_view name) const {
        std::string text = "t,tacho,axl,rad\n";
        for (int i = 0; i < 100; ++i)
            text += std::to_string(i) + "e-3," + std::to_string(i % 10 == 0 ? 5 : 0) + ',' +
                    std::to_string(i % 7) + ',' + std::to_string(i % 5) + '\n';
        return qt(write(name, text));
    }
    ImportDialog* asked() const { return window_->findChild<ImportDialog*>(); }
    void explain() {
        ImportDialog* dialog = asked();
        ASSERT_TRUE(dialog);
        dialog->findChild<QComboBox*>("role1")->setCurrentText("time");
        dialog->findChild<QComboBox*>("role3")->setCurrentText("X probe");
        dialog->findChild<QComboBox*>("role4")->setCurrentText("Y probe");
        dialog->accept();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        wait();
    }
};

TEST_F(ImportTest, AnswerIsKeptBesideAndTheRecordingIsNotTouched) {
    const QString file = unclear("a.csv");
    const auto before = std::filesystem::last_write_time(at("a.csv"));
    open({file});
    explain();
    EXPECT_EQ(planes(), QStringList{"a"});
    EXPECT_TRUE(std::filesystem::exists(at("a.machine.json")));
    EXPECT_EQ(std::filesystem::last_write_time(at("a.csv")), before);
    EXPECT_EQ(readRecording(at("a.csv")).x, bench_->planes()[0]->original().recording.x);
    restart();
    open({file});
    EXPECT_FALSE(asked());
    EXPECT_EQ(planes(), QStringList{"a"});
}

TEST_F(ImportTest, IsRememberedForRecordingsOfTheSameShape) {
    open({unclear("a.csv")});
    asked()->findChild<QAbstractButton*>("useWithoutAsking")->click();
    explain();
    restart();
    open({unclear("b.csv")});
    EXPECT_FALSE(asked());
    EXPECT_EQ(planes(), QStringList{"b"});
    EXPECT_FALSE(std::filesystem::exists(at("b.machine.json")));
}

TEST_F(ImportTest, AsksAgainWithTheLastAnswerUnlessToldNotTo) {
    open({unclear("a.csv")});
    explain();
    open({unclear("b.csv")});
    ASSERT_TRUE(asked());
    EXPECT_EQ(asked()->findChild<QComboBox*>("role3")->currentText(), "X probe");
}

TEST_F(ImportTest, AsksForOneAfterTheOther) {
    open({unclear("a.csv"), unclear("b.csv"), recording("c.csv")});
    ASSERT_TRUE(asked());
    EXPECT_TRUE(asked()->windowTitle().contains("a.csv"));
    explain();
    ASSERT_TRUE(asked());
    EXPECT_TRUE(asked()->windowTitle().contains("b.csv"));
    explain();
    EXPECT_EQ(planes(), (QStringList{"a", "b", "c"}));
}

TEST_F(ImportTest, RecordingThatNobodyExplainsIsNotOpened) {
    open({unclear("a.csv")});
    asked()->reject();
    wait();
    EXPECT_TRUE(planes().isEmpty());
    EXPECT_FALSE(std::filesystem::exists(at("a.machine.json")));
    EXPECT_EQ(told(), "");
}

}  // namespace
}  // namespace Rotavue::Workbench
