#include "tests/workbench/files/file_actions_fixture.h"

namespace Rotavue::Workbench {
namespace {

// Views in the window: saved, opened, left.
class ViewActionsTest : public FileActionsTest {};

TEST_F(ViewActionsTest, SavedViewOpensAsItWas) {
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

TEST_F(ViewActionsTest, AViewThatIsSavedFirstIsNamedAfterItsPlanes) {
    open({recording("a.csv"), recording("b.csv"), recording("b.csv")});
    EXPECT_EQ(files_->proposedFile(), qt(at("a, b.rotavue")));
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    EXPECT_EQ(files_->proposedFile(), qt(at("v.rotavue")));
}

TEST_F(ViewActionsTest, DamagedViewIsRefusedInOneLineAndChangesNothing) {
    open({recording("a.csv")});
    const QString view = qt(write("v.rotavue", R"({"rotavueView": 1, "planes": 3})"));
    open({view});
    EXPECT_EQ(told(),
              at("v.rotavue").string() + ": found 3 at /planes, allowed: a list of 0 to 64");
    EXPECT_EQ(planes(), QStringList{"a"});
    EXPECT_EQ(files_->viewFile(), "");
}

TEST_F(ViewActionsTest, ViewWhoseRecordingIsGoneChangesNothing) {
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

TEST_F(ViewActionsTest, ViewTakesThePlaceOfWhatIsShown) {
    ASSERT_TRUE(files_->saveTo(qt(at("empty.rotavue"))));
    restart();
    open({recording("a.csv")});
    open({qt(at("empty.rotavue"))});
    EXPECT_TRUE(planes().isEmpty());
}

TEST_F(ViewActionsTest, AsksBeforeChangesAreLost) {
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

TEST_F(ViewActionsTest, DiscardedChangesAreLost) {
    open({recording("a.csv")});
    window_->show();
    circle();
    answerWith(QMessageBox::Discard);
    EXPECT_TRUE(files_->mayLoseChanges());
}

TEST_F(ViewActionsTest, AsksNothingWhereNothingHasChanged) {
    open({recording("a.csv")});
    window_->show();
    EXPECT_TRUE(files_->mayLoseChanges());
}

TEST_F(ViewActionsTest, ViewThatCannotBeWrittenIsToldAndStaysChanged) {
    open({recording("a.csv")});
    circle();
    EXPECT_FALSE(files_->saveTo(qt(at("none/v.rotavue"))));
    EXPECT_EQ(told(), at("none/v.rotavue").string() +
                          ": found \"No such file or directory\", allowed: a file to write to");
    EXPECT_TRUE(isChanged());
}

TEST_F(ViewActionsTest, CompensationGoesIntoTheViewAndBack) {
    open({recording("a.csv")});
    takeOff({.form = CompensationForm::Waveform, .span = {0.0, 0.15}});
    const Samples left = bench_->planes()[0]->shown().recording.x;
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

TEST_F(ViewActionsTest, ViewThatIsSavedAtOnceKeepsItsCompensation) {
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

TEST_F(ViewActionsTest, ViewWhoseSlowRollIsGoneIsNotShownWithRunOut) {
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

TEST_F(ViewActionsTest, ViewWhoseRunOutCannotBeFoundSaysInWhichRecording) {
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

TEST_F(ViewActionsTest, ViewWithAPlaneThatCannotBeMadeChangesNothing) {
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

TEST_F(ViewActionsTest, ChangesThatAreMadeWhileAViewLoadsAreAskedFor) {
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

TEST_F(ViewActionsTest, ChangesThatItsUserHasGivenUpAreAskedForOnce) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    window_->show();
    circle();
    answerWith(QMessageBox::Discard);
    open({qt(at("v.rotavue"))});
    EXPECT_FALSE(isCircle(0));
    EXPECT_FALSE(isChanged());
}

TEST_F(ViewActionsTest, AnotherViewOpensAtOnceAfterACancel) {
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

TEST_F(ViewActionsTest, RecordingsOpenEvenIfTheViewBeforeThemDoesNot) {
    open({recording("a.csv"), recording("b.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    std::filesystem::remove(at("a.csv"));
    restart();
    files_->open({qt(at("v.rotavue"))});
    open({recording("c.csv")});
    EXPECT_EQ(planes(), QStringList{"c"});
}

TEST_F(ViewActionsTest, NewViewLeavesTheViewAndItsFile) {
    open({recording("a.csv")});
    ASSERT_TRUE(files_->saveTo(qt(at("v.rotavue"))));
    menu_->actions()[0]->trigger();
    EXPECT_TRUE(planes().isEmpty());
    EXPECT_EQ(files_->viewFile(), "");
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(bench_->undoStack().canUndo());
    EXPECT_EQ(readView(at("v.rotavue")).planes.size(), 1u);
}

TEST_F(ViewActionsTest, NewViewAsksBeforeChangesAreLost) {
    open({recording("a.csv")});
    window_->show();
    circle();
    answerWith(QMessageBox::Cancel);
    menu_->actions()[0]->trigger();
    EXPECT_EQ(planes(), QStringList{"a"});
}

}  // namespace
}  // namespace Rotavue::Workbench
