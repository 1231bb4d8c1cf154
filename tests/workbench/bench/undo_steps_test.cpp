#include "workbench/bench/undo_steps.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/bench/undo_macro.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>

#include <cmath>
#include <memory>
#include <vector>

namespace Rotavue::Workbench {
namespace {

/// Six seconds are more samples than a form is made anew of at once. Run-out of six stretches was
/// taken off one after the other, the newest ends after 0.75 s; the newest three are held, so that
/// the third step back is the first one that has to wait.
class UndoStepsTest : public BenchTest {
protected:
    static constexpr double Long = 6.0;
    static constexpr int Takes = 6;

    UndoStepsTest() {
        plane_ = &add(rotor(Long));
        for (int i = 0; i < Takes; ++i)
            take(0.5 + 0.05 * i);
    }

    void take(double to) {
        const RunOutSource source{.form = CompensationForm::Vector, .span = {0.1, to}};
        bench_.showCompensated(*plane_, withoutRunOut(plane_->sharedOriginal(), source));
    }

    void undo(int times) {
        for (int i = 0; i < times; ++i)
            bench_.steps().undo();
    }

    /// The end of the stretch whose run-out is taken off, in hundredths of a second; 0: none is.
    int shown() const {
        const auto& runOut = plane_->shown().runOut;
        return runOut ? static_cast<int>(std::lround(100.0 * runOut->source.span.to)) : 0;
    }

    int index() { return bench_.undoStack().index(); }

    /// Whether what is being made comes.
    bool comes() {
        QSignalSpy ends(&bench_, &Bench::workEnded);
        return !bench_.steps().isMaking() || (ends.wait(20'000) && !bench_.steps().isMaking());
    }

    /// Lets what would come by itself come.
    static void wait() {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 300;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }

    Plane* plane_ = nullptr;
};

TEST_F(UndoStepsTest, AFormThatIsHeldIsShownAtOnce) {
    undo(2);
    EXPECT_EQ(shown(), 65);
    EXPECT_FALSE(bench_.steps().isMaking());
    bench_.steps().redo();
    EXPECT_EQ(shown(), 70);
}

TEST_F(UndoStepsTest, AnOlderFormComesWhenItIsMadeAndStackAndPlaneStayTogetherUntilThen) {
    undo(3);
    EXPECT_TRUE(bench_.steps().isMaking());
    EXPECT_EQ(shown(), 65);
    EXPECT_EQ(index(), 1 + Takes - 2);
    ASSERT_TRUE(comes());
    EXPECT_EQ(shown(), 60);
    EXPECT_EQ(index(), 1 + Takes - 3);
    EXPECT_LT(std::abs(plane_->shown().recording.x[150]), 0.01) << "a peak of 40";
}

TEST_F(UndoStepsTest, PressedQuicklyAllOfItIsUndoneAndNothingBetweenIsMade) {
    undo(3);
    undo(2);  // passes 55
    EXPECT_EQ(shown(), 65);
    ASSERT_TRUE(comes());
    EXPECT_EQ(shown(), 50);
    EXPECT_EQ(index(), 2);
    undo(1);
    EXPECT_EQ(shown(), 0) << "the recording itself is always there";
}

TEST_F(UndoStepsTest, AWishThatLeadsToAFormThatIsHeldDropsWhatIsBeingMade) {
    undo(3);
    bench_.steps().redo();
    EXPECT_FALSE(bench_.steps().isMaking());
    wait();
    EXPECT_EQ(shown(), 65);
    EXPECT_EQ(index(), 1 + Takes - 2);
    undo(3);
    undo(Takes);  // beyond the first step
    EXPECT_FALSE(bench_.steps().isMaking());
    EXPECT_EQ(index(), 0);
    EXPECT_TRUE(bench_.planes().empty());
}

TEST_F(UndoStepsTest, ACancelLeavesAllAsItIsAndTheStepCanBeTakenAnew) {
    undo(3);
    bench_.cancelWork();
    EXPECT_FALSE(bench_.steps().isMaking());
    wait();
    EXPECT_EQ(shown(), 65);
    EXPECT_EQ(index(), 1 + Takes - 2);
    undo(1);
    ASSERT_TRUE(comes());
    EXPECT_EQ(shown(), 60);
}

TEST_F(UndoStepsTest, ANewChangeDropsTheStepThatWaits) {
    undo(3);
    bench_.setCurves(*plane_, {});
    EXPECT_FALSE(bench_.steps().isMaking());
    wait();
    EXPECT_EQ(shown(), 65);
    EXPECT_TRUE(plane_->curves().empty());
    EXPECT_FALSE(bench_.steps().canRedo());
}

TEST_F(UndoStepsTest, APlaneThatIsClosedMeanwhileIsNoMatterAndComesBackAsItWas) {
    undo(3);
    bench_.removePlane(*plane_);
    wait();
    EXPECT_TRUE(bench_.planes().empty());
    undo(1);
    EXPECT_EQ(bench_.planes().size(), 1U);
    EXPECT_EQ(shown(), 65);
}

TEST_F(UndoStepsTest, PlanesThatAreShownInThePlaceOfAllDropIt) {
    undo(3);
    bench_.showPlanes({}, 0.0);
    EXPECT_FALSE(bench_.steps().isMaking());
    wait();
    EXPECT_FALSE(bench_.steps().canUndo());
    EXPECT_FALSE(bench_.steps().canRedo());
}

TEST_F(UndoStepsTest, WhatIsSavedMeanwhileIsWhatIsShown) {
    undo(3);
    bench_.undoStack().setClean();
    ASSERT_TRUE(comes());
    EXPECT_FALSE(bench_.undoStack().isClean());
    bench_.steps().redo();
    EXPECT_EQ(shown(), 65);
    EXPECT_TRUE(bench_.undoStack().isClean());
}

TEST_F(UndoStepsTest, MenusTellOfTheStepsFromWhereTheWaitingOneLeads) {
    const QSignalSpy changes(&bench_.steps(), &UndoSteps::changed);
    bench_.setCurves(*plane_, {});
    undo(1);
    undo(3 + 2);  // to the oldest one
    EXPECT_TRUE(bench_.steps().isMaking());
    EXPECT_GT(changes.size(), 0);
    undo(1);  // to the recording: nothing to be made
    EXPECT_EQ(bench_.steps().undoText(), "opening rotor");
    EXPECT_EQ(bench_.steps().redoText(), "taking off run-out");
    undo(1);
    EXPECT_FALSE(bench_.steps().canUndo());
    EXPECT_EQ(bench_.steps().undoText(), "");
}

TEST_F(UndoStepsTest, FormsWithinOneStepOfSeveralAreMadeBeforeIt) {
    {
        const UndoMacro macro(bench_.undoStack(), "three of them");
        for (int i = 0; i < 4; ++i)
            take(0.8 + 0.05 * i);
    }
    undo(1);  // back to 75, which three newer ones have pushed out
    EXPECT_TRUE(bench_.steps().isMaking());
    EXPECT_EQ(shown(), 95);
    ASSERT_TRUE(comes());
    EXPECT_EQ(shown(), 75);
    bench_.steps().redo();
    ASSERT_TRUE(comes());
    EXPECT_EQ(shown(), 95);
}

TEST_F(UndoStepsTest, OfAShortRecordingAFormIsMadeAnewAtOnce) {
    plane_ = &add(rotor());
    for (int i = 0; i < Takes; ++i)
        take(0.5 + 0.05 * i);
    undo(4);
    EXPECT_EQ(shown(), 55);
    EXPECT_FALSE(bench_.steps().isMaking());
}

TEST_F(UndoStepsTest, ABenchThatGoesMeanwhileWaitsForNothing) {
    auto bench = std::make_unique<Bench>(module_);
    Plane& plane = bench->addPlane(preparePlane(rotor(Long)));
    for (int i = 0; i < Takes; ++i)
        bench->showCompensated(
            plane, withoutRunOut(plane.sharedOriginal(), {.span = {0.1, 0.5 + 0.05 * i}}));
    const std::weak_ptr original = plane.sharedOriginal();
    for (int i = 0; i < 4; ++i)
        bench->steps().undo();
    EXPECT_TRUE(bench->steps().isMaking());
    bench.reset();
    waitForEndingThreads();
    EXPECT_TRUE(original.expired());
}

}  // namespace
}  // namespace Rotavue::Workbench
