#include "workbench/bench/settings_command.h"

#include "tests/workbench/bench/bench_fixture.h"
#include "workbench/bench/undo_macro.h"

#include <stdexcept>

namespace Rotavue::Workbench {
namespace {

/// Steps of undo that are made of several changes.
class SettingsCommandTest : public BenchTest {
protected:
    static Settings turns(const Plane& plane, const wchar_t* count) {
        Settings settings = plane.settings();
        settings[L"revolutions"] = count;
        return settings;
    }

    std::wstring turnsOf(const Plane& plane) { return plane.settings().at(L"revolutions"); }
    int steps() { return bench_.undoStack().count(); }
};

TEST_F(SettingsCommandTest, AStepOfSeveralThatFailsOnTheWayLeavesTheUndoUsable) {
    Plane& plane = add();
    const int before = steps();
    const auto fail = [&] {
        const UndoMacro macro(bench_.undoStack(), "turns");
        bench_.setSettings(plane, turns(plane, L"7"));
        throw std::runtime_error("the plug-in fails");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(steps(), before + 1);
    bench_.undoStack().undo();  // would be refused inside a macro
    EXPECT_EQ(turnsOf(plane), L"8");
}

TEST_F(SettingsCommandTest, ChangesOfOneRunAreOneStep) {
    Plane& plane = add();
    const int before = steps();
    const int run = bench_.beginRun();
    for (const wchar_t* count : {L"7", L"6", L"5"})
        bench_.setSettings(plane, turns(plane, count), "turns", run);
    EXPECT_EQ(steps(), before + 1);
    bench_.undoStack().undo();
    EXPECT_EQ(turnsOf(plane), L"8");
    bench_.undoStack().redo();
    EXPECT_EQ(turnsOf(plane), L"5");
}

TEST_F(SettingsCommandTest, ChangesWithoutARunAndOfAnotherRunAreStepsOfTheirOwn) {
    Plane& plane = add();
    const int before = steps();
    bench_.setSettings(plane, turns(plane, L"7"), "turns", bench_.beginRun());
    bench_.setSettings(plane, turns(plane, L"6"), "turns", bench_.beginRun());
    bench_.setSettings(plane, turns(plane, L"5"));
    bench_.setSettings(plane, turns(plane, L"4"));
    EXPECT_EQ(steps(), before + 4);
}

TEST_F(SettingsCommandTest, ARunThatEndsWhereItBeganLeavesNothingToUndo) {
    Plane& plane = add();
    const Settings original = plane.settings();
    const int before = steps();
    const int run = bench_.beginRun();
    bench_.setSettings(plane, turns(plane, L"7"), "turns", run);
    bench_.setSettings(plane, original, "turns", run);
    EXPECT_EQ(steps(), before);
    EXPECT_EQ(turnsOf(plane), L"8");
}

TEST_F(SettingsCommandTest, ARunDoesNotReachBackBehindWhatWasSaved) {
    Plane& plane = add();
    const int run = bench_.beginRun();
    bench_.setSettings(plane, turns(plane, L"7"), "turns", run);
    bench_.undoStack().setClean();
    bench_.setSettings(plane, turns(plane, L"6"), "turns", run);
    EXPECT_FALSE(bench_.undoStack().isClean());
    bench_.undoStack().undo();
    EXPECT_TRUE(bench_.undoStack().isClean());
    EXPECT_EQ(turnsOf(plane), L"7");
}

TEST_F(SettingsCommandTest, CompanionsChangeInTheSameStep) {
    Plane& first = add();
    Plane& second = add();
    bench_.setCompanions([&](Plane& plane, const Settings& now) {
        std::vector<std::pair<Plane*, Settings>> others;
        Plane& other = &plane == &first ? second : first;
        others.emplace_back(&other, turns(other, now.at(L"revolutions").c_str()));
        return others;
    });
    const int before = steps();
    const int run = bench_.beginRun();
    bench_.setSettings(second, turns(second, L"3"), "turns", run);
    bench_.setSettings(first, turns(first, L"2"), "turns", run);
    EXPECT_EQ(steps(), before + 1);
    EXPECT_EQ(turnsOf(second), L"2");
    bench_.undoStack().undo();
    EXPECT_EQ(turnsOf(first), L"8");
    EXPECT_EQ(turnsOf(second), L"8");
    bench_.undoStack().redo();
    EXPECT_EQ(turnsOf(second), L"2");
}

}  // namespace
}  // namespace Rotavue::Workbench
