#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>

#include <functional>

#include "tests/workbench/files/file_actions_fixture.h"

namespace Rotavue::Workbench {
namespace {

using Deed = std::function<void()>;

// What comes while a question about the view is open.
class ViewQuestionsTest : public FileActionsTest {
protected:
    /// Does what asks; when a window of that kind has come, what happens behind it, then what
    /// answers it. False where none came.
    template <class Question>
    bool whileAsked(const Deed& ask, const Deed& behind,
                    const std::function<void(Question&)>& answer) {
        bool isAnswered = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* question = qobject_cast<Question*>(QApplication::activeModalWidget());
            if (question == nullptr) return;
            timer.stop();
            isAnswered = true;
            behind();
            answer(*question);
        });
        timer.start(1);
        ask();
        return isAnswered;
    }

    bool whileNamed(const QString& file, const Deed& ask, const Deed& behind) {
        return whileAsked<QFileDialog>(ask, behind, [&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
    }
    bool whileSavedAs(const char* name, const Deed& behind) {
        QAction* saveAs = files_->findChild<QAction*>("saveViewAs");
        return whileNamed(
            qt(at(name)), [&] { saveAs->trigger(); }, behind);
    }
    bool whileClosed(QMessageBox::StandardButton button, bool& mayClose, const Deed& behind) {
        return whileAsked<QMessageBox>(
            [&] { mayClose = files_->mayLoseChanges(); }, behind,
            [&](QMessageBox& question) { question.button(button)->click(); });
    }

    /// A view of one recording in a file of its own, and another one that is shown and saved.
    void prepareTwoViews() {
        open({recording("a.csv")});
        ASSERT_TRUE(files_->saveTo(qt(at("a.rotavue"))));
        restart();
        open({recording("b.csv")});
        ASSERT_TRUE(files_->saveTo(qt(at("b.rotavue"))));
        window_->show();
    }
};

TEST_F(ViewQuestionsTest, RecordingThatComesBehindTheFileDialogIsNotInTheFileAndStaysAChange) {
    open({recording("a.csv")});
    circle();
    files_->open({recording("b.csv")});
    ASSERT_TRUE(whileSavedAs("v.rotavue", [&] { wait(); }));
    EXPECT_EQ(planes(), (QStringList{"a", "b"}));
    EXPECT_EQ(readView(at("v.rotavue")).planes.size(), 1U);
    EXPECT_EQ(files_->viewFile(), qt(at("v.rotavue")));
    EXPECT_TRUE(isChanged());
    bench_->undoStack().undo();
    bench_->undoStack().undo();
    EXPECT_TRUE(isChanged());  // the grid is in no file
}

TEST_F(ViewQuestionsTest, WhatIsSavedBehindNothingIsNoChange) {
    open({recording("a.csv")});
    circle();
    ASSERT_TRUE(whileSavedAs("v.rotavue", [] {}));
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(readView(at("v.rotavue")).planes.size(), 1U);
}

TEST_F(ViewQuestionsTest, FileDialogThatIsCancelledSavesNothing) {
    open({recording("a.csv")});
    circle();
    QAction* saveAs = files_->findChild<QAction*>("saveViewAs");
    ASSERT_TRUE(whileAsked<QFileDialog>([&] { saveAs->trigger(); }, [] {},
                                        [](QFileDialog& dialog) { dialog.reject(); }));
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(ViewQuestionsTest, ViewThatComesBehindTheFileDialogWaitsForTheAnswer) {
    prepareTwoViews();
    files_->open({qt(at("a.rotavue"))});
    ASSERT_TRUE(whileSavedAs("c.rotavue", [&] {
        wait();
        EXPECT_EQ(planes(), QStringList{"b"});
    }));
    EXPECT_EQ(readView(at("c.rotavue")).planes[0].recording.filename(), "b.csv");
    EXPECT_EQ(files_->viewFile(), qt(at("c.rotavue")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return planes() == QStringList{"a"}; }));
    EXPECT_EQ(files_->viewFile(), qt(at("a.rotavue")));
    EXPECT_EQ(readView(at("a.rotavue")).planes[0].recording.filename(), "a.csv");
}

// Its user has given up what was changed before it was opened, and closes the window meanwhile.
TEST_F(ViewQuestionsTest, ViewThatComesBehindTheQuestionWaitsForTheAnswer) {
    for (const auto button : {QMessageBox::Save, QMessageBox::Cancel}) {
        prepareTwoViews();
        circle();
        answerWith(QMessageBox::Discard);
        files_->open({qt(at("a.rotavue"))});
        bool mayClose = false;
        ASSERT_TRUE(whileClosed(button, mayClose, [&] {
            wait();
            EXPECT_EQ(planes(), QStringList{"b"});
        }));
        EXPECT_EQ(mayClose, button == QMessageBox::Save);
        EXPECT_EQ(readView(at("b.rotavue")).planes[0].setup.count("graphType"),
                  button == QMessageBox::Save ? 1U : 0U);
        EXPECT_TRUE(QTest::qWaitFor([&] { return planes() == QStringList{"a"}; }));
        restart();
    }
}

// It is not in the file, so it is asked about once more.
TEST_F(ViewQuestionsTest, WhatComesWhileAViewIsSavedIsNotLost) {
    open({recording("a.csv")});
    circle();
    window_->show();
    files_->open({recording("b.csv")});
    int asked = 0;
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, [&asked] {
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (question == nullptr) return;
        question->button(asked++ == 0 ? QMessageBox::Save : QMessageBox::Cancel)->click();
    });
    answering.start(1);
    bool mayClose = true;
    ASSERT_TRUE(whileNamed(
        qt(at("v.rotavue")), [&] { mayClose = files_->mayLoseChanges(); }, [&] { wait(); }));
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(planes(), (QStringList{"a", "b"}));
    EXPECT_EQ(readView(at("v.rotavue")).planes[0].setup.count("graphType"), 1U);
    EXPECT_EQ(readView(at("v.rotavue")).planes.size(), 1U);
}

TEST_F(ViewQuestionsTest, NothingIsAskedBehindAQuestionThatIsOpen) {
    prepareTwoViews();
    circle();
    bool mayClose = true;
    ASSERT_TRUE(whileClosed(QMessageBox::Cancel, mayClose, [&] {
        files_->open({qt(at("a.rotavue"))});
        EXPECT_FALSE(files_->loader().isLoading());
    }));
    EXPECT_FALSE(mayClose);
    EXPECT_EQ(planes(), QStringList{"b"});
}

}  // namespace
}  // namespace Rotavue::Workbench
