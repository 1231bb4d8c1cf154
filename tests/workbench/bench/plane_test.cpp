#include "workbench/bench/plane.h"

#include "tests/workbench/bench/bench_fixture.h"

#include <algorithm>

namespace Rotavue::Workbench {
namespace {

const HostKit::HostDescription& hostOf(Plane& plane) {
    return plane.host().description;
}

bool anyHas(const std::vector<std::string>& lines, const std::string& part) {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(part) != std::string::npos;
    });
}

using PlaneTest = BenchTest;

TEST_F(PlaneTest, BeginsWithEightTurnsOfTheRawOrbit) {
    const Plane& plane = add();
    EXPECT_EQ(plane.curves(), std::vector{CurveRequest{}});
    EXPECT_TRUE(plane.span().byTurns);
    EXPECT_EQ(plane.span().turnsThere, 8);
    EXPECT_NEAR(plane.span().speed, 3000.0, 1.0);
}

TEST_F(PlaneTest, WithoutAKeyphasorBeginsWithAHundredMilliseconds) {
    const Plane& plane = add(withoutKeyphasor(rotor()));
    EXPECT_FALSE(plane.span().byTurns);
    EXPECT_EQ(plane.span().milliseconds, 100.0);
    EXPECT_EQ(plane.span().speed, 0.0);
}

TEST_F(PlaneTest, DrawsTheClearanceWhereItIsKnown) {
    Recording recording = rotor();
    EXPECT_EQ(usualSettings(PlaneSource(recording)).at(L"drawClearance"), L"False");
    recording.machine.clearanceHeight = 200.0;
    const PlaneSource source(recording);
    EXPECT_EQ(usualSettings(source).at(L"drawClearance"), L"True");
    EXPECT_EQ(source.recording.machine.clearanceWidth, 200.0);
}

TEST_F(PlaneTest, AssignsAGroupForTheRawOrbitAndAChannelForEachOtherCurve) {
    Plane& plane = add();
    plane.setCurves({{}, {.kind = CurveKind::Average}, {.kind = CurveKind::SubSync}});
    EXPECT_EQ(hostOf(plane).assigned.groups.size(), 1U);
    EXPECT_EQ(hostOf(plane).assigned.slots.at(0).kind, 1);
    ASSERT_EQ(hostOf(plane).assigned.channels.size(), 2U);
    EXPECT_TRUE(plane.control().accepts(*hostOf(plane).assigned.channels[0]));
    EXPECT_TRUE(plane.control().acceptsGroup(0));
    plane.setCurves({{.kind = CurveKind::Average}});
    EXPECT_TRUE(hostOf(plane).assigned.groups.empty());
    EXPECT_EQ(hostOf(plane).assigned.slots.at(0).kind, 0);
    EXPECT_EQ(hostOf(plane).assigned.channels.size(), 1U);
}

// Each of the turns has 256 points: 50 turns a second at 10 kHz are 200 samples each.
TEST_F(PlaneTest, TurnsByAngleAreThoseThatTheControlShows) {
    Plane& plane = add(rotor(), {.curves = {{}, {.kind = CurveKind::ByAngle}}});
    auto& channels = plane.host().description.channels;
    EXPECT_EQ(channels["curve2"].arraySize, 8 * 256);
    EXPECT_EQ(channels["curve2"].name, L"direct by angle");
    Settings settings = plane.settings();
    settings[L"revolutions"] = L"3";
    plane.load(settings);
    EXPECT_EQ(channels["curve2"].arraySize, 3 * 256);
}

TEST_F(PlaneTest, WhatIsTriedOutIsShownAndNotAcceptedUntilItIsLoaded) {
    Plane& plane = add();
    const Settings before = plane.acceptedSettings();
    Settings circle = before;
    circle[L"graphType"] = L"1";
    plane.tryOut(circle);
    EXPECT_EQ(plane.settings().at(L"graphType"), L"1");
    EXPECT_EQ(plane.acceptedSettings(), before);
    plane.endTrial();
    EXPECT_EQ(plane.settings(), before);
    plane.tryOut(circle);
    plane.load(circle);
    EXPECT_FALSE(plane.isTryingOut());
    plane.endTrial();
    EXPECT_EQ(plane.acceptedSettings().at(L"graphType"), L"1");
}

TEST_F(PlaneTest, ACurveKeepsItsColourWhateverElseIsTicked) {
    Plane& plane = add();
    const CurveRequest subSync{.kind = CurveKind::SubSync};
    plane.setCurves({{}, subSync});
    const std::uint32_t color = plane.colorOf(1);
    plane.setCurves({{}, {.kind = CurveKind::Average}, subSync});
    EXPECT_EQ(plane.colorOf(2), color);
    plane.setCurves({subSync});
    EXPECT_EQ(plane.colorOf(0), color);
}

// The reference was ticked first and has the colour that the second order would have.
TEST_F(PlaneTest, ColoursComeBackWithTheirNumbers) {
    const CurveRequest second{.kind = CurveKind::Harmonic, .orders = {2.0}};
    const CurveRequest reference{.kind = CurveKind::Reference, .file = "none.json"};
    Plane& ticked = add();
    ticked.setCurves({reference});
    ticked.setCurves({second, reference});
    Plane& again = add(rotor(), {.curves = ticked.curves(), .colors = ticked.colorNumbers()});
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(again.colorOf(i), ticked.colorOf(i));
    Plane& usual = add(rotor(), {.curves = ticked.curves()});
    EXPECT_NE(usual.colorOf(0), ticked.colorOf(0));
}

TEST_F(PlaneTest, NotesWhyACurveCannotBeHadAndShowsTheOthers) {
    Plane& plane = add(withoutKeyphasor(rotor()));
    plane.setCurves({{}, {.kind = CurveKind::Average}});
    EXPECT_TRUE(anyHas(plane.notes(), "average: "));
    EXPECT_TRUE(anyHas(plane.notes(), "no keyphasor"));
    EXPECT_EQ(hostOf(plane).assigned.groups.size(), 1U);
    plane.setCurves({{}});
    EXPECT_FALSE(anyHas(plane.notes(), "average: "));
}

TEST_F(PlaneTest, NoCurveAtAllIsAnEmptyAssignment) {
    Plane& plane = add();
    plane.setCurves({});
    EXPECT_TRUE(hostOf(plane).assigned.groups.empty());
    EXPECT_TRUE(hostOf(plane).assigned.channels.empty());
}

/// The amplitude grows evenly with time, so that at half the time it is half as large.
TEST_F(PlaneTest, CurvesOfTheShownTurnsFollowTheCursor) {
    Recording growing = rotor();
    for (std::size_t i = 0; i < growing.x.size(); ++i)
        growing.x.edit()[i] *= static_cast<double>(i);
    Plane& plane = add(growing, {.curves = {{.kind = CurveKind::Average}}});
    const auto largest = [&] {
        const auto& x = plane.host().description.channels["curve1"].values[4];
        return *std::max_element(x.begin(), x.end());
    };
    plane.showMoment(0.8, HostState::Stored);
    const double late = largest();
    plane.showMoment(0.4, HostState::Stored);
    EXPECT_NEAR(largest() / late, 0.5, 0.1);
}

TEST_F(PlaneTest, WhereNoTurnHasPassedYetOnlyTheAverageIsMissing) {
    Plane& plane = add(rotor(), {.curves = {{}, {.kind = CurveKind::Average}}});
    plane.showMoment(0.01, HostState::Stored);
    EXPECT_TRUE(anyHas(plane.notes(), "average: "));
    plane.showMoment(0.9, HostState::Stored);
    EXPECT_FALSE(anyHas(plane.notes(), "average: "));
}

TEST_F(PlaneTest, AcquiringFillsRingBuffersUpToTheMoment) {
    Plane& plane = add();
    plane.showMoment(0.5, HostState::Acquiring);
    EXPECT_TRUE(hostOf(plane).host.acquiring);
    // Sample 5000 is the newest one, of 10000.
    const auto& orbit = plane.host().description.channels["orbit1"];
    EXPECT_EQ(orbit.sampleCount, 5001);
    EXPECT_EQ(orbit.writePosition, 5001);
    plane.showMoment(0.5, HostState::Stored);
    EXPECT_FALSE(hostOf(plane).host.acquiring);
    EXPECT_EQ(orbit.sampleCount, 10000);
}

TEST_F(PlaneTest, ACompensatedRecordingTakesThePlaceOfTheOriginal) {
    Plane& plane = add();
    // X is 40 at its peak, 5 ms after the first sample: a quarter turn of 20 ms.
    const auto peak = [&] { return plane.host().description.channels["orbit1"].values[4][50]; };
    const double before = peak();
    plane.show(still(plane));
    EXPECT_NEAR(peak(), 0.0, 1e-3);
    EXPECT_EQ(plane.original().recording.x[50], before);
    EXPECT_EQ(plane.compensation(), "run-out compensated: 1X, 2X vector");
    plane.show(plane.sharedOriginal());
    EXPECT_EQ(peak(), before);
    EXPECT_EQ(plane.compensation(), "");
}

TEST_F(PlaneTest, BeginsWithoutTheRunOutThatIsTakenOffItsSource) {
    const Plane& measured = add();
    const Plane& plane = bench_.addPlane(still(measured));
    EXPECT_EQ(plane.compensation(), "run-out compensated: 1X, 2X vector");
    EXPECT_EQ(plane.sharedOriginal(), measured.sharedOriginal());
}

TEST_F(PlaneTest, ReadsBackWhatTheControlChanges) {
    Plane& plane = add();
    EXPECT_FALSE(plane.readBack());
    Settings circle = plane.settings();
    circle[L"graphType"] = L"1";
    plane.control().load(circle);
    EXPECT_TRUE(plane.readBack());
    EXPECT_EQ(plane.settings().at(L"graphType"), L"1");
    EXPECT_FALSE(plane.readBack());
}

TEST_F(PlaneTest, LimitsThatTheAutomaticScaleFindsAreNoChange) {
    Plane& plane = add();
    plane.control().draw(plane.host().canvas(), 400, 400, 1);
    EXPECT_FALSE(plane.readBack());
    // 40 um and a tenth of room.
    EXPECT_NEAR(std::stod(plane.settings().at(L"maxXValue")), 44.0, 0.5);
}

TEST_F(PlaneTest, ColoursSuitTheBackground) {
    Plane& plane = add();
    EXPECT_EQ(plane.host().description.channels["orbit1"].color, 0x0072B2U);
    plane.setLight(false);
    EXPECT_EQ(plane.host().description.channels["orbit1"].color, 0x56B4E9U);
}

}  // namespace
}  // namespace Rotavue::Workbench
