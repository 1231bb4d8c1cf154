#include "workbench/scene/slow_curves.h"

#include "tests/workbench/analysis/generated_recording.h"

#include <gtest/gtest.h>

#include <thread>

namespace Rotavue::Workbench {

namespace {

const CurveRequest BelowFirst{.kind = CurveKind::SubSync};
const CurveRequest Centre{.kind = CurveKind::ShaftCenter};

CurveMaterial materialOf(double duration) {
    const auto recording = std::make_shared<const Recording>(generate(
        {.duration = duration, .orders = {{.order = 1.0, .x = {40.0, 0.0}, .y = {30.0, 90.0}}}}));
    return {recording, std::make_shared<const ShaftTrack>(*recording), {}};
}

/// A second is 10,000 samples.
class SlowCurvesTest : public testing::Test {
protected:
    static constexpr double Short = 1.0;
    static constexpr double Long = 10.0;

    void makeAll() {
        while (curves_.current() != nullptr) {
            curves_.look();
            std::this_thread::yield();
        }
    }

    const MadeCurve& made(const CurveRequest& request) {
        const MadeCurve* found = curves_.find(request);
        EXPECT_NE(found, nullptr);
        return *found;
    }

    SlowCurves curves_;
};

TEST_F(SlowCurvesTest, WhatIsQuickIsMadeAtOnce) {
    curves_.use(materialOf(Short));
    EXPECT_EQ(made(BelowFirst).channel.value().sampleCount, 10'000);
    EXPECT_EQ(curves_.current(), nullptr);
    EXPECT_FALSE(curves_.look());
}

TEST_F(SlowCurvesTest, WhatTakesLongComesWithALaterLook) {
    curves_.use(materialOf(Long));
    EXPECT_EQ(curves_.find(BelowFirst), nullptr);
    ASSERT_NE(curves_.current(), nullptr);
    EXPECT_EQ(*curves_.current(), BelowFirst);
    while (!curves_.look()) {
        EXPECT_LE(curves_.part(), 1.0);
        std::this_thread::yield();
    }
    EXPECT_EQ(made(BelowFirst).channel.value().sampleCount, 100'000);
    EXPECT_EQ(curves_.current(), nullptr);
}

TEST_F(SlowCurvesTest, AreMadeOneAfterTheOther) {
    curves_.use(materialOf(Long));
    curves_.find(BelowFirst);
    curves_.find(Centre);
    EXPECT_EQ(*curves_.current(), BelowFirst);
    while (!curves_.look())
        std::this_thread::yield();
    EXPECT_EQ(*curves_.current(), Centre);
    makeAll();
    EXPECT_TRUE(made(Centre).channel.has_value());
}

TEST_F(SlowCurvesTest, OfAnotherRecordingNothingComesBack) {
    curves_.use(materialOf(Long));
    curves_.find(BelowFirst);
    curves_.use(materialOf(Short));
    EXPECT_EQ(curves_.current(), nullptr);
    waitForEndingThreads();
    EXPECT_FALSE(curves_.look());
    EXPECT_EQ(made(BelowFirst).channel.value().sampleCount, 10'000);
}

TEST_F(SlowCurvesTest, WhatNobodyWantsAnyMoreGivesWayToTheNext) {
    curves_.use(materialOf(Long));
    curves_.find(BelowFirst);
    curves_.find(Centre);
    curves_.keepOnly({Centre});
    EXPECT_EQ(*curves_.current(), Centre);
    makeAll();
    EXPECT_TRUE(made(Centre).channel.has_value());
    EXPECT_EQ(curves_.find(BelowFirst), nullptr);
}

TEST_F(SlowCurvesTest, ACancelledOneSaysSoUntilItIsAskedForAnew) {
    curves_.use(materialOf(Long));
    curves_.find(BelowFirst);
    curves_.find(Centre);
    curves_.cancel();
    for (const CurveRequest& request : {BelowFirst, Centre}) {
        EXPECT_FALSE(made(request).channel.has_value());
        EXPECT_EQ(made(request).notes,
                  std::vector{wordsOf(request) + ": cancelled; choose it anew to have it"});
    }
    curves_.keepOnly({});
    EXPECT_EQ(curves_.find(BelowFirst), nullptr);
    makeAll();
    EXPECT_TRUE(made(BelowFirst).channel.has_value());
}

TEST_F(SlowCurvesTest, ForgettingKeepsWhatIsMade) {
    curves_.use(materialOf(Long));
    curves_.find(Centre);
    makeAll();
    curves_.find(BelowFirst);
    curves_.forgetUnmade();
    EXPECT_EQ(curves_.current(), nullptr);
    EXPECT_TRUE(made(Centre).channel.has_value());
    EXPECT_EQ(curves_.find(BelowFirst), nullptr);
}

TEST_F(SlowCurvesTest, TheNotesTellWhyThereIsNone) {
    curves_.use(materialOf(Short));
    const CurveRequest missing{.kind = CurveKind::Reference, .file = "/no/such/reference.json"};
    EXPECT_FALSE(made(missing).channel.has_value());
    ASSERT_EQ(made(missing).notes.size(), 1U);
    EXPECT_TRUE(made(missing).notes[0].starts_with(wordsOf(missing) + ": "));
}

TEST_F(SlowCurvesTest, AThreadThatIsStillAtWorkNeedsNothingOfThem) {
    {
        SlowCurves curves;
        curves.use(materialOf(Long));
        curves.find(BelowFirst);
        curves.use(materialOf(Long));
        curves.find(BelowFirst);
    }
    waitForEndingThreads();
}

}  // namespace

}  // namespace Rotavue::Workbench
