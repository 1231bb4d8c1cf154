#include "workbench/files/recording_questions.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTest>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/files/file_actions.h"
#include "workbench/recording/machine_file.h"

namespace Rotavue::Workbench {
namespace {

// A window with a File menu; the plane that was opened last is the current one.
class RecordingQuestionsTest : public ScratchFolder {
protected:
    RecordingQuestionsTest() {
        menu_ = window_.menuBar()->addMenu("File");
        files_ = new FileActions(bench_, window_, *menu_, settings_);
        new RecordingQuestions(
            bench_, files_->opener(),
            [this] { return bench_.planes().empty() ? nullptr : bench_.planes().back().get(); },
            *menu_, *files_);
    }
    ~RecordingQuestionsTest() override { bench_.undoStack().clear(); }

    // Columns of 100 rows: t rises, the others have 0 to 9.
    std::string table(const std::string& header, int others) const {
        std::string text = header + '\n';
        for (int i = 0; i < 100; ++i) {
            text += std::to_string(i) + "e-3";
            for (int k = 0; k < others; ++k)
                text += ',' + std::to_string((i + k) % 10);
            text += '\n';
        }
        return text;
    }
    void open(const std::filesystem::path& file) {
        files_->open({qt(file)});
        wait();
    }
    void wait() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !files_->opener().isReading(); }, 60'000));
    }
    QAction& action(const char* name) const {
        Q_EMIT menu_->aboutToShow();
        for (QAction* one : menu_->actions())
            if (one->objectName() == name) return *one;
        throw std::logic_error(name);
    }
    ImportDialog* ask(const char* name) {
        action(name).trigger();
        wait();
        return window_.findChild<ImportDialog*>();
    }
    static void type(ImportDialog* dialog, const char* field, const QString& text) {
        dialog->findChild<QLineEdit*>(field)->setText(text);
    }
    static void choose(ImportDialog* dialog, const char* box, const QString& word) {
        dialog->findChild<QComboBox*>(box)->setCurrentText(word);
    }
    void accept(ImportDialog* dialog) {
        dialog->accept();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        wait();
    }
    const Recording& recording(std::size_t plane = 0) const {
        return bench_.planes().at(plane)->original().recording;
    }
    std::string told() const { return files_->messages().lines().join('\n').toStdString(); }

    Bench bench_{std::make_shared<HostKit::Module>(ROTAVUE_MODULE_FILE)};
    QSettings settings_{qt(at("settings.ini")), QSettings::IniFormat};
    QMainWindow window_;
    QMenu* menu_ = nullptr;
    FileActions* files_ = nullptr;
};

TEST_F(RecordingQuestionsTest, RecordingThatWasOpenedUnaskedCanBeToldOf) {
    open(write("r.csv", table("t,x,y", 2)));
    EXPECT_EQ(recording().machine.rotation, std::nullopt);
    ImportDialog* dialog = ask("correctRecording");
    ASSERT_TRUE(dialog);
    type(dialog, "/unit", "um");
    type(dialog, "/x/angle", "45 R");
    type(dialog, "/y/angle", "45 L");
    choose(dialog, "/rotation", "CCW");
    type(dialog, "clearanceWidth", "200");
    choose(dialog, "clearanceKind", "diameters");
    accept(dialog);
    ASSERT_EQ(bench_.planes().size(), 1U);
    EXPECT_EQ(recording().machine.unit, "um");
    EXPECT_EQ(recording().machine.xAngle, 45.0);
    EXPECT_EQ(recording().machine.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(readMachineFile(at("r.machine.json")).y.angle, 315.0);
    EXPECT_EQ(readMachineFile(at("r.machine.json")).clearanceWidth, 200.0);
    bench_.undoStack().undo();
    EXPECT_EQ(recording().machine.unit, "");
}

TEST_F(RecordingQuestionsTest, WrongMachineFileIsTheBeginningAndIsWrittenAnew) {
    write("r.machine.json", R"({"unit": "mil", "rotation": "CW", "x": {"angle": 45}})");
    open(write("r.csv", table("t,x,y", 2)));
    EXPECT_EQ(recording().machine.unit, "mil");
    ImportDialog* dialog = ask("correctRecording");
    EXPECT_EQ(dialog->findChild<QLineEdit*>("/unit")->text(), "mil");
    EXPECT_EQ(dialog->findChild<QComboBox*>("/rotation")->currentText(), "CW");
    type(dialog, "/unit", "um");
    choose(dialog, "/rotation", "not known");
    choose(dialog, "role2", "Y probe");
    choose(dialog, "role3", "X probe");
    accept(dialog);
    EXPECT_EQ(recording().machine.unit, "um");
    EXPECT_EQ(recording().machine.rotation, std::nullopt);
    EXPECT_EQ(recording().machine.xAngle, 45.0);
    // The third column begins with 1.
    EXPECT_EQ(recording().x.front(), 1.0);
    const RecordingOptions kept = readMachineFile(at("r.machine.json"));
    EXPECT_EQ(kept.unit, "um");
    EXPECT_EQ(kept.rotation, std::nullopt);
    EXPECT_EQ(kept.x.column, "y");
}

TEST_F(RecordingQuestionsTest, AnswerThatDoesNotFitTheFileLeavesPlaneAndMachineFile) {
    write("r.machine.json", R"({"unit": "mil"})");
    open(write("r.csv", table("t,x,y,k", 3)));
    ImportDialog* dialog = ask("correctRecording");
    choose(dialog, "role4", "keyphasor");
    choose(dialog, "/keyphasor/kind", "speed");
    type(dialog, "/unit", "um");
    write("r.csv", table("t,x,y,k", 3) + "1,2,3,-5\n");
    accept(dialog);
    EXPECT_NE(told().find("found a speed of -5 rpm"), std::string::npos) << told();
    EXPECT_EQ(recording().machine.unit, "mil");
    EXPECT_EQ(readMachineFile(at("r.machine.json")).unit, "mil");
}

TEST_F(RecordingQuestionsTest, WhatIsLeftOpenCountsThoughTheMachineFileStays) {
    write("r.machine.json", R"({"rotation": "CW"})");
    open(write("r.csv", table("t,x,y", 2)));
    ImportDialog* dialog = ask("correctRecording");
    choose(dialog, "/rotation", "not known");
    dialog->findChild<QCheckBox*>("keepBeside")->setChecked(false);
    accept(dialog);
    EXPECT_EQ(recording().machine.rotation, std::nullopt);
    EXPECT_EQ(readMachineFile(at("r.machine.json")).rotation, Rotation::Clockwise);
}

TEST_F(RecordingQuestionsTest, FurtherPlaneComesBesideAndLeavesTheMachineFile) {
    write("r.machine.json", R"({"x": {"column": "P1.X"}, "y": {"column": "P1.Y"},
                                "point": "Bearing 1", "unit": "um", "rotation": "CCW"})");
    open(write("r.csv", table("t,P1.X,P1.Y,P2.X,P2.Y", 4)));
    ImportDialog* dialog = ask("openFurtherPlane");
    EXPECT_EQ(dialog->findChild<QComboBox*>("role2")->currentText(), "not used");
    EXPECT_EQ(dialog->findChild<QComboBox*>("role4")->currentText(), "X probe");
    EXPECT_FALSE(dialog->findChild<QCheckBox*>("keepBeside")->isVisibleTo(dialog));
    type(dialog, "/point", "Bearing 2");
    accept(dialog);
    ASSERT_EQ(bench_.planes().size(), 2U);
    EXPECT_EQ(bench_.planes()[1]->name(), "Bearing 2");
    // The fourth column begins with 2, the fifth with 3.
    EXPECT_EQ(recording(1).x.front(), 2.0);
    EXPECT_EQ(recording(1).y.front(), 3.0);
    EXPECT_EQ(recording(1).machine.rotation, Rotation::CounterClockwise);
    EXPECT_EQ(readMachineFile(at("r.machine.json")).x.column, "P1.X");
    EXPECT_FALSE(action("forgetAnswers").isEnabled());
}

// Its columns have two units: it fails, and is told what it holds once more.
TEST_F(RecordingQuestionsTest, FurtherPlaneThatFailsLeavesTheMachineFileWhenItIsMended) {
    write("r.machine.json", R"({"x": {"column": "P1.X"}, "y": {"column": "P1.Y"}})");
    open(write("r.csv", table("t,P1.X [um],P1.Y [um],P2.X [um],P2.Y [mil]", 4)));
    accept(ask("openFurtherPlane"));
    ASSERT_NE(told().find("\"um\" and y in \"mil\""), std::string::npos) << told();
    files_->messages().findChild<QAbstractButton*>("messageRemedy")->click();
    wait();
    auto* dialog = window_.findChild<ImportDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(dialog->findChild<QCheckBox*>("keepBeside")->isVisibleTo(dialog));
    EXPECT_FALSE(dialog->findChild<QCheckBox*>("useWithoutAsking")->isVisibleTo(dialog));
    EXPECT_EQ(dialog->findChild<QComboBox*>("role4")->currentText(), "X probe");
    type(dialog, "/unit", "um");
    type(dialog, "/y/sensitivity", "0.03937");
    accept(dialog);
    ASSERT_EQ(bench_.planes().size(), 2U) << told();
    EXPECT_EQ(recording(1).x.front(), 2.0);
    EXPECT_EQ(readMachineFile(at("r.machine.json")).x.column, "P1.X");
    EXPECT_FALSE(action("forgetAnswers").isEnabled());
}

// By a machine file and by names alone.
TEST_F(RecordingQuestionsTest, CorrectedFurtherPlaneIsKeptNeitherBesideNorForOthers) {
    for (const char* first : {R"({"x": {"column": "P1.X"}, "y": {"column": "P1.Y"}})", "{}"}) {
        write("r.machine.json", first);
        open(write("r.csv", table("t,P1.X,P1.Y,P2.X,P2.Y", 4)));
        accept(ask("openFurtherPlane"));
        ImportDialog* dialog = ask("correctRecording");
        EXPECT_FALSE(dialog->findChild<QCheckBox*>("keepBeside")->isVisibleTo(dialog));
        type(dialog, "/unit", "mil");
        accept(dialog);
        EXPECT_EQ(bench_.planes().back()->original().recording.machine.unit, "mil");
        EXPECT_EQ(readMachineFile(at("r.machine.json")).unit, std::nullopt);
        EXPECT_FALSE(action("forgetAnswers").isEnabled());
    }
}

TEST_F(RecordingQuestionsTest, AnswersThatAreUsedAgainCanBeForgotten) {
    EXPECT_FALSE(action("forgetAnswers").isEnabled());
    open(write("r.csv", table("t,x,y", 2)));
    ImportDialog* dialog = ask("correctRecording");
    type(dialog, "/machine", "Kit");
    type(dialog, "/point", "Bearing 1");
    type(dialog, "/unit", "um");
    accept(dialog);
    const std::string shape = readBeginning(at("r.csv")).shape;
    const auto remembered = ImportMemory(settings_).find(shape);
    ASSERT_TRUE(remembered);
    EXPECT_EQ(remembered->options.unit, "um");
    // The next file of this shape is another machine's.
    EXPECT_EQ(remembered->options.machine, std::nullopt);
    EXPECT_EQ(remembered->options.point, std::nullopt);
    action("forgetAnswers").trigger();
    EXPECT_FALSE(ImportMemory(settings_).find(shape));
    EXPECT_FALSE(action("forgetAnswers").isEnabled());
}

TEST_F(RecordingQuestionsTest, PlaneThatWasClosedMeanwhileDoesNotComeBack) {
    open(write("r.csv", table("t,x,y", 2)));
    ImportDialog* dialog = ask("correctRecording");
    dialog->accept();
    bench_.removePlane(*bench_.planes().front());
    wait();
    EXPECT_TRUE(bench_.planes().empty());
}

TEST_F(RecordingQuestionsTest, WithoutAPlaneThereIsNothingToAskOf) {
    EXPECT_FALSE(action("correctRecording").isEnabled());
    EXPECT_FALSE(action("openFurtherPlane").isEnabled());
    EXPECT_TRUE(action("correctRecording").toolTip().endsWith(": nothing is open"));
    open(write("r.csv", table("t,x,y", 2)));
    EXPECT_TRUE(action("correctRecording").isEnabled());
    EXPECT_TRUE(action("correctRecording").toolTip().endsWith("(Ctrl+I)"));
    EXPECT_TRUE(action("openFurtherPlane").isEnabled());
}

// What is left open for the second plane is told of the first one by the machine file.
TEST_F(RecordingQuestionsTest, ViewLaysNoMachineFileUnderWhatWasToldInFull) {
    write("r.machine.json", R"({"point": "Bearing 1", "rotation": "CCW",
        "x": {"column": "P1.X", "rest": 3}, "y": {"column": "P1.Y"}})");
    open(write("r.csv", table("t,P1.X,P1.Y,P2.X,P2.Y", 4)));
    ImportDialog* dialog = ask("openFurtherPlane");
    choose(dialog, "/rotation", "not known");
    type(dialog, "/x/rest", "");
    accept(dialog);
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(bench_.planes().size(), 2U);
        EXPECT_EQ(bench_.planes()[0]->name(), "Bearing 1");
        EXPECT_EQ(bench_.planes()[1]->name(), "r");
        EXPECT_EQ(recording(1).machine.rotation, std::nullopt);
        EXPECT_EQ(recording(1).x[0], 2.0);  // what the fourth column begins with, from no rest
        open(at("v.rotavue"));
    }
}

TEST_F(RecordingQuestionsTest, WhatWasToldAndNotKeptIsTheBeginningOfTheNextQuestion) {
    write("r.machine.json", R"({"rotation": "CCW"})");
    open(write("r.csv", table("t,x,y", 2)));
    ImportDialog* dialog = ask("correctRecording");
    choose(dialog, "/rotation", "not known");
    dialog->findChild<QCheckBox*>("keepBeside")->setChecked(false);
    accept(dialog);
    EXPECT_EQ(ask("correctRecording")->findChild<QComboBox*>("/rotation")->currentText(),
              "not known");
}

}  // namespace
}  // namespace Rotavue::Workbench
