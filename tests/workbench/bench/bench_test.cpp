#include "workbench/bench/bench.h"

#include "tests/workbench/bench/bench_fixture.h"

#include <QSignalSpy>

namespace Rotavue::Workbench {
namespace {

TEST_F(BenchTest, TheFirstPlanePutsTheCursorOnItsLastSample) {
    add();
    // 10,000 samples at 10 kHz.
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.9999);
    EXPECT_DOUBLE_EQ(bench_.duration(), 0.9999);
    bench_.setCursor(0.3);
    add();
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.3);
}

TEST_F(BenchTest, OneCursorMovesAllPlanesAndStopsAtTheLongest) {
    const Plane& longer = add(rotor(1.0));
    const Plane& shorter = add(rotor(0.5));
    const QSignalSpy moved(&bench_, &Bench::cursorMoved);
    bench_.setCursor(0.4);
    EXPECT_EQ(longer.position(), 4000U);
    EXPECT_EQ(shorter.position(), 4000U);
    bench_.setCursor(7.0);
    EXPECT_EQ(longer.position(), 9999U);
    EXPECT_EQ(shorter.position(), 4999U);
    bench_.setCursor(-1.0);
    EXPECT_EQ(longer.position(), 0U);
    EXPECT_EQ(moved.count(), 3);
}

TEST_F(BenchTest, PlanesComeAndGoAndComeBack) {
    const QSignalSpy changed(&bench_, &Bench::planesChanged);
    Plane& first = add();
    Plane& second = add();
    bench_.removePlane(first);
    ASSERT_EQ(bench_.planes().size(), 1U);
    EXPECT_EQ(bench_.planes()[0].get(), &second);
    bench_.undoStack().undo();
    ASSERT_EQ(bench_.planes().size(), 2U);
    EXPECT_EQ(bench_.planes()[0].get(), &first);
    bench_.undoStack().undo();
    bench_.undoStack().undo();
    EXPECT_TRUE(bench_.planes().empty());
    EXPECT_EQ(bench_.cursor(), 0.0);
    EXPECT_EQ(changed.count(), 6);
}

TEST_F(BenchTest, PlaneThatComesBackBringsTheCursorBack) {
    add();
    bench_.setCursor(0.25);
    bench_.removePlane(*bench_.planes()[0]);
    EXPECT_EQ(bench_.cursor(), 0.0);
    bench_.undoStack().undo();
    EXPECT_EQ(bench_.cursor(), 0.25);
    bench_.undoStack().undo();  // the opening
    bench_.undoStack().redo();
    EXPECT_EQ(bench_.cursor(), 0.25);
}

TEST_F(BenchTest, CursorThatWasMovedMeanwhileStaysWhereItIs) {
    add();
    Plane& longer = add(rotor(2.0));
    bench_.setCursor(1.5);
    bench_.removePlane(longer);  // to the end of the other one
    bench_.setCursor(0.25);
    bench_.undoStack().undo();
    EXPECT_EQ(bench_.cursor(), 0.25);
}

TEST_F(BenchTest, RecordingThatIsReadAnewTakesThePlaceOfItsPlane) {
    Plane& first = add();
    Plane& second = add();
    bench_.setCurves(first, {{.kind = CurveKind::Average}});
    Settings circle = first.settings();
    circle[L"graphType"] = L"1";
    bench_.setSettings(first, circle);
    bench_.setCursor(0.3);
    Recording again = rotor(1.0);
    again.machine.point = "Drive end";
    const Plane& fresh = bench_.replacePlane(first, preparePlane(std::move(again)));
    ASSERT_EQ(bench_.planes().size(), 2U);
    EXPECT_EQ(bench_.planes()[0].get(), &fresh);
    EXPECT_EQ(fresh.name(), "Drive end");
    EXPECT_EQ(fresh.curves().at(0).kind, CurveKind::Average);
    EXPECT_EQ(fresh.settings().at(L"graphType"), L"1");
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.3);
    bench_.undoStack().undo();
    EXPECT_EQ(bench_.planes()[0].get(), &first);
    EXPECT_EQ(bench_.planes()[1].get(), &second);
    EXPECT_DOUBLE_EQ(bench_.cursor(), 0.3);
}

TEST_F(BenchTest, ClearanceThatIsToldLaterIsDrawn) {
    Recording untold = rotor(1.0);
    untold.machine.clearanceWidth = untold.machine.clearanceHeight = 0.0;
    Recording told = untold;
    told.machine.clearanceWidth = told.machine.clearanceHeight = 200.0;
    Plane& plane = add(std::move(untold));
    ASSERT_EQ(usualSettings(plane.original()).at(L"drawClearance"), L"False");
    const Plane& fresh = bench_.replacePlane(plane, preparePlane(std::move(told)));
    EXPECT_EQ(fresh.settings().at(L"drawClearance"), L"True");
}

TEST_F(BenchTest, CurvesCanBeUndone) {
    Plane& plane = add();
    const QSignalSpy changed(&bench_, &Bench::curvesChanged);
    bench_.setCurves(plane, {{.kind = CurveKind::Average}});
    EXPECT_EQ(plane.curves().at(0).kind, CurveKind::Average);
    bench_.undoStack().undo();
    EXPECT_EQ(plane.curves().at(0).kind, CurveKind::Raw);
    bench_.undoStack().redo();
    EXPECT_EQ(plane.curves().at(0).kind, CurveKind::Average);
    EXPECT_EQ(changed.count(), 3);
}

TEST_F(BenchTest, TheSameCurvesAgainAreNoChange) {
    Plane& plane = add();
    const int before = bench_.undoStack().count();
    bench_.setCurves(plane, {{}});
    EXPECT_EQ(bench_.undoStack().count(), before);
}

TEST_F(BenchTest, SettingsCanBeUndone) {
    Plane& plane = add();
    Settings circle = plane.settings();
    circle[L"graphType"] = L"1";
    bench_.setSettings(plane, circle, "circle");
    EXPECT_EQ(plane.settings().at(L"graphType"), L"1");
    EXPECT_EQ(bench_.undoStack().undoText(), "circle");
    bench_.undoStack().undo();
    EXPECT_EQ(plane.settings().count(L"graphType"), 0U);
}

TEST_F(BenchTest, WhatTheControlChangedByItselfBecomesACommand) {
    Plane& plane = add();
    const int before = bench_.undoStack().count();
    bench_.noticeSettings(plane);
    EXPECT_EQ(bench_.undoStack().count(), before);
    Settings fewer = plane.settings();
    fewer[L"revolutions"] = L"2";
    plane.control().load(fewer);
    bench_.noticeSettings(plane, "turns");
    EXPECT_EQ(bench_.undoStack().count(), before + 1);
    EXPECT_EQ(plane.span().turns, 2);
    bench_.undoStack().undo();
    EXPECT_EQ(plane.span().turns, 8);
}

/// Settings with which an edit of a limit begins where the scale is automatic.
Settings manual(const Plane& plane) {
    Settings settings = plane.acceptedSettings();
    settings[L"useManualMagnitudeLimits"] = L"True";
    return settings;
}

bool isManual(const Plane& plane) {
    const Settings settings = plane.settings();
    const auto found = settings.find(L"useManualMagnitudeLimits");
    return found != settings.end() && found->second == L"True";
}

TEST_F(BenchTest, WhatWasTriedOutIsNotWhatUndoBringsBack) {
    Plane& plane = add();
    plane.tryOut(manual(plane));
    ASSERT_TRUE(isManual(plane));
    Settings circle = manual(plane);
    circle[L"graphType"] = L"1";
    bench_.setSettings(plane, circle, "circle");
    EXPECT_TRUE(isManual(plane));
    bench_.undoStack().undo();
    EXPECT_FALSE(isManual(plane));
}

TEST_F(BenchTest, AChangeInThePanelAcceptsNothingThatIsTriedOut) {
    Plane& plane = add();
    plane.tryOut(manual(plane));
    Settings fewer = manual(plane);
    fewer[L"revolutions"] = L"2";
    plane.control().load(fewer);
    bench_.noticeSettings(plane, "turns");
    EXPECT_EQ(plane.span().turns, 2);
    EXPECT_FALSE(isManual(plane));
    bench_.undoStack().undo();
    EXPECT_EQ(plane.span().turns, 8);
    EXPECT_FALSE(isManual(plane));
}

TEST_F(BenchTest, ARecordingThatIsReadAnewHasTheAcceptedSettings) {
    Plane& plane = add();
    plane.tryOut(manual(plane));
    EXPECT_FALSE(isManual(bench_.replacePlane(plane, preparePlane(rotor(0.5)))));
}

TEST_F(BenchTest, CompensationCanBeUndone) {
    Plane& plane = add();
    const auto left = still(plane);
    bench_.showCompensated(plane, left);
    EXPECT_EQ(plane.sharedShown(), left);
    bench_.undoStack().undo();
    EXPECT_EQ(plane.compensation(), "");
    bench_.undoStack().redo();
    EXPECT_EQ(plane.sharedShown(), left);
    bench_.showOriginal(plane);
    EXPECT_EQ(plane.compensation(), "");
    bench_.undoStack().undo();
    EXPECT_EQ(plane.sharedShown(), left);
}

TEST_F(BenchTest, PlanesTakeThePlaceOfAllOthersInOneStepThatIsNotUndone) {
    add();
    add();
    std::vector<std::size_t> counts;
    QObject::connect(&bench_, &Bench::planesChanged,
                     [&] { counts.push_back(bench_.planes().size()); });
    const auto plane = bench_.makePlane(preparePlane(rotor(0.5)), {});
    EXPECT_EQ(bench_.planes().size(), 2u);
    bench_.showPlanes({plane}, 0.25);
    EXPECT_EQ(counts, std::vector<std::size_t>{1});
    EXPECT_EQ(bench_.cursor(), 0.25);
    // 0.25 s at 10 kHz.
    EXPECT_EQ(plane->position(), 2500u);
    EXPECT_FALSE(bench_.undoStack().canUndo());
    EXPECT_TRUE(bench_.undoStack().isClean());
}

TEST_F(BenchTest, TheSchemeRecoloursAllPlanesAndThoseThatComeLater) {
    Plane& early = add();
    bench_.setScheme(0);
    Plane& late = add();
    EXPECT_EQ(early.colorOf(0), 0x56B4E9U);
    EXPECT_EQ(late.colorOf(0), 0x56B4E9U);
}

}  // namespace
}  // namespace Rotavue::Workbench
