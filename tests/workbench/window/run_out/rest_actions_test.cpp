#include "workbench/window/run_out/rest_actions.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/analysis/machine_frame.h"

#include <QSignalSpy>

#include <algorithm>
#include <vector>

namespace Rotavue::Workbench {
namespace {

/// The shaft stands at 3 and 4 um for 0.4 s, and is then 10 um to the right and 20 um higher.
class RestActionsTest : public BenchTest {
protected:
    static Recording lifted(Coupling coupling = Coupling::Dc, double clearance = 200.0) {
        Recording recording = generate({.firstSpeed = 0, .lastSpeed = 0, .xMean = 3, .yMean = 4});
        for (std::size_t i = 4000; i < recording.x.size(); ++i) {
            recording.x.edit()[i] += 10.0;
            recording.y.edit()[i] += 20.0;
        }
        recording.file = "rotor.csv";
        recording.coupling = coupling;
        recording.machine.clearanceHeight = clearance;
        return recording;
    }

    Plane& show(Recording recording) {
        PlaneSetup setup;
        setup.options.shaftCenter.interval = 0.2;
        plane_ = &add(std::move(recording), setup);
        actions_.refresh();
        return *plane_;
    }

    void mark(const TimeSpan& stretch) {
        marked_ = stretch;
        actions_.refresh();
    }

    /// The newest position toward X and Y, as the control gets it: element 0 is Y, 1 is X.
    ProbeValues newest() const {
        HostKit::HostDescription& host = plane_->host().description;
        for (const std::string& id : host.channels.ids()) {
            HostKit::ChannelDescription& channel = host.channels[id];
            const auto kind = channel.properties.find(L"OrbitAnalysisChannelType");
            if (kind == channel.properties.end() || kind->second != L"ShaftCenter") continue;
            const std::vector<double>& values = channel.values[0];
            return {values.at(values.size() - 3), values.at(values.size() - 4)};
        }
        ADD_FAILURE() << "no shaft centre";
        return {};
    }

    bool notes(const std::string& line) const {
        const auto all = plane_->notes();
        return std::find(all.begin(), all.end(), line) != all.end();
    }

    void expectNewest(double x, double y) const {
        EXPECT_NEAR(newest().x, x, 1e-9);
        EXPECT_NEAR(newest().y, y, 1e-9);
    }

    static bool says(const QAction& action, const QString& why) {
        return !action.isEnabled() && action.toolTip().endsWith(": " + why);
    }

    Plane* plane_ = nullptr;
    std::optional<TimeSpan> marked_;
    RestActions actions_{bench_, {[this] { return plane_; }, [this] { return marked_; }}};
};

TEST_F(RestActionsTest, MeanGapOfTheStretchIsTheCentre) {
    show(lifted());
    mark({0.0, 0.4});
    actions_.atCentre.trigger();
    expectNewest(10.0, 20.0);
}

// 200 um of clearance: the bottom is 100 below the centre, and the shaft has risen by 20.
TEST_F(RestActionsTest, MeanGapOfTheStretchIsTheBottom) {
    show(lifted());
    mark({0.0, 0.4});
    actions_.atBottom.trigger();
    expectNewest(10.0, -80.0);
}

TEST_F(RestActionsTest, ShaftCentreIsShownWithItInOneStepOfUndo) {
    Plane& plane = show(lifted());
    mark({0.0, 0.4});
    const int steps = bench_.undoStack().count();
    actions_.atBottom.trigger();
    EXPECT_EQ(plane.curves().size(), 2U);
    EXPECT_EQ(plane.curves().back().kind, CurveKind::ShaftCenter);
    EXPECT_EQ(bench_.undoStack().count(), steps + 1);
    bench_.undoStack().undo();
    EXPECT_EQ(plane.curves().size(), 1U);
    EXPECT_FALSE(plane.curveOptions().shaftCenter.restSpan);
    EXPECT_EQ(plane.curveOptions().shaftCenter.rest, RestPosition::Centre);
}

TEST_F(RestActionsTest, ForgottenTheGapsCountAsTheyAre) {
    show(lifted());
    EXPECT_TRUE(says(actions_.forget, "no rest position of this plane has been taken"));
    mark({0.0, 0.4});
    actions_.atCentre.trigger();
    ASSERT_TRUE(actions_.forget.isEnabled());
    actions_.forget.trigger();
    expectNewest(13.0, 24.0);
    bench_.undoStack().undo();
    expectNewest(10.0, 20.0);
}

TEST_F(RestActionsTest, WhatIsMissingIsSaidWhereTheyAreGrey) {
    const QString noStretch = "no stretch is marked in the waveforms";
    const QString noHeight =
        "the shaft centre at the bottom of the clearance needs the clearance's height";
    const QString noMean =
        "the shaft centre needs the mean of the gaps, which AC coupling takes away";
    for (const QAction* action : {&actions_.atBottom, &actions_.atCentre, &actions_.forget})
        EXPECT_TRUE(says(*action, "nothing is open"));
    show(lifted());
    EXPECT_TRUE(says(actions_.atBottom, noStretch));
    EXPECT_TRUE(says(actions_.atCentre, noStretch));
    mark({0.0, 0.4});
    EXPECT_TRUE(actions_.atBottom.isEnabled());
    show(lifted(Coupling::Dc, 0.0));
    EXPECT_TRUE(says(actions_.atBottom, noHeight));
    EXPECT_TRUE(actions_.atCentre.isEnabled());
    show(lifted(Coupling::Ac));
    EXPECT_TRUE(says(actions_.atBottom, noMean));
    EXPECT_TRUE(says(actions_.atCentre, noMean));
}

TEST_F(RestActionsTest, StretchWithoutSamplesIsReportedAndNothingChanges) {
    Plane& plane = show(lifted());
    QSignalSpy reports(&bench_, &Bench::troubled);
    mark({5.0, 6.0});
    const int steps = bench_.undoStack().count();
    actions_.atCentre.trigger();
    ASSERT_EQ(reports.count(), 1);
    EXPECT_EQ(reports[0][0].toString(),
              "rotor: the shaft centre finds no samples at rest between 5 and 6 s");
    EXPECT_EQ(bench_.undoStack().count(), steps);
    EXPECT_EQ(plane.curves().size(), 1U);
}

TEST_F(RestActionsTest, ShaftThatTurnsThereIsANoteOfThePlane) {
    show(rotor());
    mark({0.1, 0.5});
    actions_.atCentre.trigger();
    EXPECT_TRUE(notes(
        "shaft centre: the shaft turns at 3000 rpm between 0.1 and 0.5 s, which is taken for its "
        "rest"));
}

}  // namespace
}  // namespace Rotavue::Workbench
