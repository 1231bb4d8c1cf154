#include <QComboBox>

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

}  // namespace
}  // namespace Rotavue::Workbench
