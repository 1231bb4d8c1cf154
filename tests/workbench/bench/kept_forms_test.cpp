#include "workbench/bench/kept_forms.h"

#include "tests/workbench/bench/bench_fixture.h"

#include <vector>

namespace Rotavue::Workbench {
namespace {

class KeptFormsTest : public BenchTest {
protected:
    /// What is left without the run-out of that stretch; turns take 20 ms.
    std::shared_ptr<const PlaneSource> left(double to) const {
        const RunOutSource source{.span = {0.1, to}};
        return withoutRunOut(original_, source, findRunOut(*original_, source));
    }

    std::shared_ptr<const PlaneSource> original_ = preparePlane(rotor());
    KeptForms forms_;
};

TEST_F(KeptFormsTest, ARecordingIsItsOwnForm) {
    EXPECT_EQ(forms_.formOf(forms_.keep(original_)), original_);
}

TEST_F(KeptFormsTest, WhatAnybodyHoldsIsNotMadeAnew) {
    const auto form = left(0.5);
    const auto kept = forms_.keep(form);
    for (int i = 1; i < 6; ++i)
        forms_.keep(left(0.5 + 0.05 * i));
    EXPECT_EQ(forms_.formOf(kept), form);
}

TEST_F(KeptFormsTest, HoldsTheNewestFewAndMakesAnOlderOneAnew) {
    std::vector<std::shared_ptr<KeptForms::Kept>> kept;
    std::vector<std::weak_ptr<const PlaneSource>> made;
    std::vector<double> values;  // of the first sample
    for (int i = 0; i < 6; ++i) {
        const auto form = left(0.5 + 0.05 * i);
        made.push_back(form);
        values.push_back(form->recording.x.front());
        kept.push_back(forms_.keep(form));
    }
    for (std::size_t i = 0; i < made.size(); ++i)
        EXPECT_EQ(made[i].expired(), i + KeptForms::MostHeld < made.size()) << i;
    const auto again = forms_.formOf(kept[0]);
    EXPECT_EQ(again->recording.x.front(), values[0]);
    EXPECT_EQ(again->runOut->source.span, (TimeSpan{0.1, 0.5}));
    EXPECT_EQ(again->runOut->original, original_);
    EXPECT_TRUE(made[3].expired()) << "its place was needed";
}

// Room for one form and a half, so for the newest alone; and for that also where there is none.
TEST_F(KeptFormsTest, HoldsNoMoreThanTheNewestOfLongRecordings) {
    const auto one = left(0.5);
    const Recording& recording = one->recording;
    const std::size_t ofOne =
        recording.x.memoryUse() + recording.y.memoryUse() + recording.angle.memoryUse();
    for (const std::size_t most : {ofOne + ofOne / 2, std::size_t{1}}) {
        KeptForms forms(most);
        auto form = left(0.5);
        const std::weak_ptr<const PlaneSource> older = form;
        forms.keep(form);
        form = left(0.6);
        const std::weak_ptr<const PlaneSource> newest = form;
        forms.keep(form);
        form.reset();
        EXPECT_TRUE(older.expired());
        EXPECT_FALSE(newest.expired());
    }
}

using UndoMemoryTest = BenchTest;

TEST_F(UndoMemoryTest, ManyTakesOfRunOutKeepFewCopiesAndAllCanBeUndone) {
    Plane& plane = add();
    std::vector<std::weak_ptr<const PlaneSource>> made;
    for (int i = 0; i < 8; ++i) {
        const RunOutSource source{.span = {0.1, 0.5 + 0.05 * i}};
        auto left =
            withoutRunOut(plane.sharedOriginal(), source, findRunOut(plane.original(), source));
        made.push_back(left);
        bench_.showCompensated(plane, std::move(left));
    }
    const auto there =
        std::count_if(made.begin(), made.end(), [](const auto& one) { return !one.expired(); });
    EXPECT_LE(there, static_cast<std::ptrdiff_t>(KeptForms::MostHeld) + 1);
    for (int i = 6; i >= 0; --i) {
        bench_.undoStack().undo();
        EXPECT_EQ(plane.shown().runOut->source.span.to, 0.5 + 0.05 * i);
    }
    bench_.undoStack().undo();
    EXPECT_EQ(plane.sharedShown(), plane.sharedOriginal());
}

TEST_F(UndoMemoryTest, PlanesThatAreShownInThePlaceOfAllLeaveNoFormBehind) {
    Plane& plane = add();
    const std::weak_ptr original = plane.sharedOriginal();
    std::weak_ptr<const PlaneSource> left;
    {
        const auto form = still(plane);
        left = form;
        bench_.showCompensated(plane, form);
    }
    ASSERT_FALSE(left.expired());
    bench_.showPlanes({}, 0.0);
    EXPECT_TRUE(left.expired());
    EXPECT_TRUE(original.expired());
}

TEST_F(UndoMemoryTest, AHundredStepsCanBeTakenBackAndNoMore) {
    Plane& plane = add();
    for (int i = 0; i < 150; ++i)
        bench_.setCurves(plane, i % 2 == 0 ? std::vector<CurveRequest>{}
                                           : std::vector<CurveRequest>{CurveRequest{}});
    EXPECT_EQ(bench_.undoStack().count(), 100);
}

}  // namespace
}  // namespace Rotavue::Workbench
