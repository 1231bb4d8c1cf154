#include "workbench/bench/run_out.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/analysis/analysis_error.h"
#include "workbench/recording/recording_error.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Rotavue::Workbench {
namespace {

class RunOutTest : public BenchTest {
protected:
    std::shared_ptr<const PlaneSource> original_ = preparePlane(rotor());
};

TEST_F(RunOutTest, WhatIsLeftTellsWhatWasTakenOffAndOfWhat) {
    const RunOutSource source{.form = CompensationForm::Waveform, .span = {0.1, 0.5}};
    const auto left = withoutRunOut(original_, source, findRunOut(*original_, source));
    ASSERT_TRUE(left->runOut);
    EXPECT_EQ(left->runOut->source.form, CompensationForm::Waveform);
    EXPECT_EQ(left->runOut->source.span.from, 0.1);
    EXPECT_EQ(left->runOut->source.span.to, 0.5);
    EXPECT_EQ(left->runOut->original, original_);
    EXPECT_FALSE(original_->runOut);
    // The peaks of 40 and 30 are all run-out.
    const Recording& rest = left->recording;
    EXPECT_LT(std::abs(*std::max_element(rest.x.begin(), rest.x.end())), 0.01);
    EXPECT_LT(std::abs(*std::max_element(rest.y.begin(), rest.y.end())), 0.01);
}

TEST_F(RunOutTest, DoubtsOfTheRunOutAreNotesOfWhatIsLeft) {
    const RunOutSource source{.span = {0.1, 0.5}};
    const auto left = withoutRunOut(original_, source, findRunOut(*original_, source));
    EXPECT_EQ(std::count(left->notes.begin(), left->notes.end(),
                         "run-out taken at 3000 rpm: above 1000 rpm the shaft's own motion is part "
                         "of it"),
              1);
}

TEST_F(RunOutTest, WithoutItsRecordingThereIsNone) {
    EXPECT_THROW(findRunOut(*original_, {.slowRoll = "missing.csv"}), RecordingError);
}

TEST_F(RunOutTest, WithoutATurnThereIsNone) {
    // A turn takes 20 ms.
    EXPECT_THROW(findRunOut(*original_, {.span = {0.1, 0.11}}), AnalysisError);
}

/// Goes on for that many words.
ReadingWatch forWords(std::vector<double>& parts, std::size_t words) {
    return [&parts, words](double part) {
        parts.push_back(part);
        return parts.size() < words;
    };
}

TEST_F(RunOutTest, FindingAndTakingOffIsOneWayFromNothingToAll) {
    std::vector<double> parts;
    const auto left = withoutRunOut(original_, {.span = {0.1, 0.5}}, forWords(parts, 1000));
    EXPECT_EQ(left->runOut->source.span.to, 0.5);
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
    EXPECT_LT(parts.front(), 0.5);
    EXPECT_EQ(parts.back(), 1.0);
}

TEST_F(RunOutTest, EndsAtTheNextWordWhereverItIsCancelled) {
    const RunOutSource source{.span = {0.1, 0.5}};
    std::vector<double> parts;
    withoutRunOut(original_, source, forWords(parts, 1000));
    const std::size_t words = parts.size();
    for (std::size_t i = 1; i <= words; ++i) {
        parts.clear();
        EXPECT_THROW(withoutRunOut(original_, source, forWords(parts, i)), ReadingCancelled) << i;
        EXPECT_EQ(parts.size(), i);
    }
}

TEST_F(RunOutTest, OfAnotherBearingIsRefused) {
    Recording other = rotor();
    other.machine.xAngle = 45.0;
    const auto slowRoll = findRunOut(*preparePlane(other), {.span = {0.1, 0.5}});
    EXPECT_THROW(withoutRunOut(original_, {}, slowRoll), AnalysisError);
}

}  // namespace
}  // namespace Rotavue::Workbench
