#include "workbench/window/run_out/reference_actions.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/analysis/reference_orbit.h"
#include "workbench/recording/machine_file.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <cmath>
#include <filesystem>

namespace Rotavue::Workbench {

namespace {

class ReferenceActionsTest : public BenchTest {
protected:
    std::filesystem::path at(const char* name) const {
        return std::filesystem::path(folder_.path().toStdString()) / name;
    }

    void save(const char* name) {
        actions_->saveTo(at(name));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !actions_->isSaving(); }));
    }

    static Recording withFile(Recording recording, const std::filesystem::path& file) {
        recording.file = file;
        return recording;
    }

    QTemporaryDir folder_;
    QWidget window_;
    std::optional<TimeSpan> marked_;
    QStringList told_;
    ReferenceActions* actions_ = new ReferenceActions(
        bench_,
        {[this] { return bench_.planes().empty() ? nullptr : bench_.planes()[0].get(); },
         [this] { return marked_; }},
        [this](const QString& line) { told_ += line; }, window_);
};

// Turn n begins at (n - 0.25) / 50 s, so that turns 1 to 49 are whole in the second of the
// recording.
TEST_F(ReferenceActionsTest, KeepsTheMeanOfAllTurnsWhereNoneAreMarked) {
    add();
    save("reference.json");
    const ReferenceOrbit kept = loadReference(at("reference.json"));
    EXPECT_EQ(kept.orbit.averages, 49);
    EXPECT_NEAR(kept.orbit.x[0], 40.0, 1e-3);  // X is at its peak at the pulse
    EXPECT_NEAR(kept.orbit.speed, 3000.0, 1e-6);
    EXPECT_EQ(told_, QStringList{"Saved the mean of 49 turns as " +
                                 QString::fromStdString(at("reference.json").string())});
    EXPECT_EQ(bench_.undoStack().count(), 1);  // the opening alone
}

// Those that begin at (11 - 0.25) / 50 = 0.215 s or later and end at (30 - 0.25) / 50 = 0.595 s.
TEST_F(ReferenceActionsTest, KeepsTheMarkedTurnsAlone) {
    add();
    marked_ = TimeSpan{0.2, 0.6};
    save("reference.json");
    EXPECT_EQ(loadReference(at("reference.json")).orbit.averages, 19);
}

TEST_F(ReferenceActionsTest, KeepsWhatThePlaneShows) {
    Plane& plane = add();
    bench_.showCompensated(plane, still(plane));
    save("reference.json");
    EXPECT_LT(std::abs(loadReference(at("reference.json")).orbit.x[0]), 0.1);
}

TEST_F(ReferenceActionsTest, WhatCannotBeSavedIsReported) {
    QSignalSpy troubled(&bench_, &Bench::troubled);
    add();
    save("no/such/folder/reference.json");
    marked_ = TimeSpan{0.5, 0.505};  // a quarter of a turn
    save("reference.json");
    ASSERT_EQ(troubled.count(), 2);
    EXPECT_TRUE(troubled[0][0].toString().contains("no/such/folder/reference.json"));
    EXPECT_TRUE(troubled[1][0].toString().startsWith("rotor: "));
    EXPECT_FALSE(std::filesystem::exists(at("reference.json")));
    EXPECT_TRUE(told_.isEmpty());
}

TEST_F(ReferenceActionsTest, NeverReplacesWhatAPlaneIsMadeFrom) {
    QSignalSpy troubled(&bench_, &Bench::troubled);
    add(withFile(rotor(), at("rotor.csv")));
    for (const char* name : {"rotor.csv", "rotor.machine.json"}) {
        actions_->saveTo(at(name));
        EXPECT_FALSE(actions_->isSaving());
        EXPECT_FALSE(std::filesystem::exists(at(name)));
    }
    EXPECT_EQ(troubled.count(), 2);
}

TEST_F(ReferenceActionsTest, IsOffWithoutAPlaneOrAKeyphasorAndSaysWhy) {
    EXPECT_TRUE(actions_->save.toolTip().endsWith(": nothing is open"));
    Recording still = rotor();
    still.angle.clear();
    still.keyphasorKind = KeyphasorKind::None;
    Plane& plane = add(std::move(still));
    EXPECT_TRUE(actions_->save.toolTip().endsWith(": there is no keyphasor"));
    bench_.removePlane(plane);
    add();
    EXPECT_TRUE(actions_->save.isEnabled());
}

TEST_F(ReferenceActionsTest, CancelledItLetsTheNextOneBegin) {
    ProgressRow* bar = actions_->makeBar(&window_);
    add();
    actions_->saveTo(at("first.json"));
    EXPECT_FALSE(actions_->save.isEnabled());
    bar->findChild<QPushButton*>("referenceCancel")->click();
    EXPECT_FALSE(actions_->isSaving());
    EXPECT_TRUE(actions_->save.isEnabled());
    save("second.json");
    EXPECT_TRUE(std::filesystem::exists(at("second.json")));
    EXPECT_EQ(told_.size(), 1);
    waitForEndingThreads();
}

}  // namespace

}  // namespace Rotavue::Workbench
