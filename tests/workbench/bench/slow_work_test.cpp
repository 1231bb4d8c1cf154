#include "tests/workbench/bench/bench_fixture.h"

#include <QSignalSpy>

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

/// Ten seconds are more samples than a curve is made of at once.
class SlowWork : public BenchTest {
protected:
    static constexpr double Long = 10.0;

    Plane& addLong() { return add(rotor(Long), {.curves = {{}, {.kind = CurveKind::SubSync}}}); }

    static bool isShown(Plane& plane) {
        return plane.host().description.channels.contains("curve2");
    }

    static bool hasNote(const Plane& plane, const std::string& part) {
        const auto notes = plane.notes();
        return std::any_of(notes.begin(), notes.end(), [&](const std::string& note) {
            return note.find(part) != std::string::npos;
        });
    }
};

TEST_F(SlowWork, ACurveThatTakesLongComesWhenItIsMade) {
    Plane& plane = addLong();
    EXPECT_TRUE(bench_.isWorking());
    EXPECT_FALSE(isShown(plane));
    EXPECT_TRUE(hasNote(plane, "is being made"));
    const QSignalSpy changes(&bench_, &Bench::curvesChanged);
    const QSignalSpy ends(&bench_, &Bench::workEnded);
    bench_.finishWork();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(ends.size(), 1);
    EXPECT_TRUE(isShown(plane));
    EXPECT_FALSE(hasNote(plane, "is being made"));
    EXPECT_TRUE(plane.control().accepts("curve2"));
}

TEST_F(SlowWork, ComesByItselfToPlanesThatAreShownInThePlaceOfOthers) {
    Bench bench(module_);
    const auto plane =
        bench.makePlane(preparePlane(rotor(Long)), {.curves = {{}, {.kind = CurveKind::SubSync}}});
    bench.showPlanes({plane}, 1.0);
    QSignalSpy changes(&bench, &Bench::curvesChanged);
    ASSERT_TRUE(changes.wait());
    EXPECT_TRUE(isShown(*plane));
}

TEST_F(SlowWork, TellsWhatIsMadeOfWhichPlane) {
    addLong();
    const QSignalSpy words(&bench_, &Bench::worked);
    bench_.finishWork();
    ASSERT_FALSE(words.isEmpty());
    EXPECT_EQ(words.first().at(0).toString(), QStringLiteral("rotor, below 1X"));
    EXPECT_LE(words.first().at(1).toDouble(), 1.0);
}

TEST_F(SlowWork, IsMadeOnceForAsLongAsTheRecordingStays) {
    Plane& plane = addLong();
    bench_.finishWork();
    bench_.setCurves(plane, {{}, {.kind = CurveKind::SubSync}, {.kind = CurveKind::Average}});
    bench_.setCursor(2.0);
    EXPECT_FALSE(bench_.isWorking());
    EXPECT_TRUE(isShown(plane));
}

TEST_F(SlowWork, CancelledItLeavesANote) {
    Plane& plane = addLong();
    bench_.cancelWork();
    EXPECT_FALSE(bench_.isWorking());
    EXPECT_FALSE(isShown(plane));
    EXPECT_TRUE(hasNote(plane, "below 1X: cancelled"));
}

TEST_F(SlowWork, AClosedPlaneMakesNothingUntilItIsBack) {
    Plane& plane = addLong();
    bench_.removePlane(plane);
    EXPECT_FALSE(bench_.isWorking());
    bench_.undoStack().undo();
    EXPECT_TRUE(bench_.isWorking());
    bench_.finishWork();
    EXPECT_TRUE(isShown(plane));
}

TEST_F(SlowWork, OtherOptionsMakeItAnew) {
    Plane& plane = addLong();
    bench_.finishWork();
    EXPECT_TRUE(isShown(plane));
    bench_.setCurveOptions(plane, {});
    EXPECT_FALSE(isShown(plane));
    EXPECT_TRUE(bench_.isWorking());
    bench_.finishWork();
    EXPECT_TRUE(isShown(plane));
}

}  // namespace

}  // namespace Rotavue::Workbench
