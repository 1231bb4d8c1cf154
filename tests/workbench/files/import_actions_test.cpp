#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

#include "tests/workbench/files/file_actions_fixture.h"
#include "workbench/files/import_dialog.h"

namespace Rotavue::Workbench {
namespace {

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

TEST_F(ImportTest, OneProbeAFileIsRefusedWithoutAQuestion) {
    for (const char* table : {"t,x\n0,1\n1,2\n2,4\n", "0,1\n1,2\n2,4\n"}) {
        open({qt(write("a.csv", table))});
        EXPECT_FALSE(asked());
        EXPECT_TRUE(
            told().ends_with("a.csv: found one column of values, allowed: the two probes of "
                             "a plane, side by side in one file"))
            << told();
    }
}

TEST_F(ImportTest, WhatIsUsedWithoutAskingIsNoted) {
    open({unclear("a.csv")});
    asked()->findChild<QAbstractButton*>("useWithoutAsking")->click();
    explain();
    open({unclear("b.csv")});
    ASSERT_EQ(planes(), (QStringList{"a", "b"}));
    const auto isNoted = [this](std::size_t plane) {
        const auto notes = bench_->planes()[plane]->notes();
        return std::count(notes.begin(), notes.end(),
                          "read as remembered for this shape of file (Ctrl+I)") == 1;
    };
    EXPECT_FALSE(isNoted(0));
    EXPECT_TRUE(isNoted(1));
}

// Any three columns without names have one shape.
TEST_F(ImportTest, FilesWithoutNamesAreAlwaysAskedAboutAndBeginWithTheLastAnswer) {
    const std::string table = "0,1,2\n1,2,3\n2,4,1\n3,0,2\n";
    open({qt(write("a.csv", table))});
    ASSERT_TRUE(asked());
    EXPECT_TRUE(asked()->findChild<QAbstractButton*>("useWithoutAsking")->isHidden());
    asked()->findChild<QAbstractButton*>("useWithoutAsking")->setChecked(true);
    asked()->findChild<QComboBox*>("role2")->setCurrentText("Y probe");
    asked()->findChild<QComboBox*>("role3")->setCurrentText("X probe");
    asked()->accept();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    wait();
    open({qt(write("b.csv", table))});
    ASSERT_TRUE(asked());
    EXPECT_EQ(asked()->findChild<QComboBox*>("role3")->currentText(), "X probe");
}

TEST_F(ImportTest, WhatAMachineFileSaysWronglyCanBeToldAnew) {
    write("a.machine.json", R"({"unit": "um", "x": {"column": "nowhere"}, "rotation": "left"})");
    open({unclear("a.csv")});
    EXPECT_TRUE(planes().isEmpty());
    EXPECT_NE(told().find("a.machine.json: found \"left\" at /rotation"), std::string::npos)
        << told();
    files_->messages().findChild<QAbstractButton*>("messageRemedy")->click();
    wait();
    EXPECT_EQ(told(), "");
    ASSERT_TRUE(asked());
    EXPECT_EQ(asked()->findChild<QLineEdit*>("/unit")->text(), "um");
    EXPECT_EQ(asked()->findChild<QComboBox*>("/rotation")->currentText(), "not known");
    explain();
    EXPECT_EQ(planes(), QStringList{"a"});
    EXPECT_EQ(readRecording(at("a.csv")).machine.unit, "um");  // with the machine file of now
}

// 247 letters and the 13 of ".machine.json" are 260 bytes; a name of a file has 255 at the most.
TEST_F(ImportTest, NameThatIsTooLongForAMachineFileIsOpenedAndMended) {
    const std::string name = std::string(247, 'n') + ".csv";
    open({qt(write(name, "t,x [um],y [mil]\n0,1,2\n1,2,3\n2,3,1\n"))});
    EXPECT_NE(told().find("found x in \"um\" and y in \"mil\""), std::string::npos) << told();
    files_->messages().findChild<QAbstractButton*>("messageRemedy")->click();
    wait();
    ASSERT_TRUE(asked());
    asked()->findChild<QLineEdit*>("/unit")->setText("um");
    asked()->accept();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    wait();
    EXPECT_EQ(planes().size(), 1);
    EXPECT_NE(told().find("a folder to write to"), std::string::npos) << told();
}

TEST_F(ImportTest, TwoUnitsCanBeToldOf) {
    open({qt(write("a.csv", "t,x [um],y [mil]\n0,1,2\n1,2,3\n2,3,1\n"))});
    EXPECT_NE(told().find("found x in \"um\" and y in \"mil\""), std::string::npos) << told();
    files_->messages().findChild<QAbstractButton*>("messageRemedy")->click();
    wait();
    ASSERT_TRUE(asked());
    asked()->findChild<QLineEdit*>("/unit")->setText("um");
    asked()->findChild<QLineEdit*>("/y/sensitivity")->setText("0.03937");
    asked()->accept();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    wait();
    EXPECT_EQ(planes(), QStringList{"a"});
}

TEST_F(ImportTest, WhatNoAnswerHelpsHasNoButton) {
    open({qt(at("missing.csv"))});
    open({qt(write("text.csv", "hello\n"))});
    EXPECT_EQ(files_->messages().lines().size(), 2);
    EXPECT_EQ(files_->messages().findChild<QAbstractButton*>("messageRemedy"), nullptr);
}

TEST_F(ImportTest, VoltsOfAGapAreNotedAndTheirMeanIsOfferedAsTheRestPosition) {
    write("a.machine.json", R"({"unit": "V"})");
    open({qt(write("a.csv", "t [s],x [V],y [V]\n0,-9.75,-0.25\n1,-9.85,0.25\n2,-9.8,0\n"))});
    ASSERT_EQ(planes(), QStringList{"a"});
    const auto notes = bench_->planes()[0]->notes();
    EXPECT_EQ(std::count(notes.begin(), notes.end(),
                         "the X probe stands at -9.8 V, 98 times its peak-to-peak: tell its rest "
                         "position and V/um, or AC (in the window with Ctrl+I)"),
              1);
    files_->opener().correct(bench_->planes()[0]->sharedOriginal());
    wait();
    ASSERT_TRUE(asked());
    EXPECT_EQ(asked()->findChild<QLineEdit*>("/x/rest")->text(), "-9.8");
    EXPECT_EQ(asked()->findChild<QLineEdit*>("/y/rest")->text(), "");
}

}  // namespace
}  // namespace Rotavue::Workbench
