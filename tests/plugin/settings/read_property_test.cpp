#include "tests/plugin/settings/panel_test.h"

#include <functional>
#include <utility>

namespace Meridax::VisualControls::Rotavue {
namespace {

using ChangedWidget = PanelTest;
using Change = std::function<void(SettingsState&)>;

TEST_F(ChangedWidget, StoresItsValueInItsSettingAndNowhereElse) {
    struct Case {
        const wchar_t* name;
        ::Rotavue::HostKit::WidgetValue value;
        Change change;
    };
    const std::vector<Case> cases = {
        {L"TickCount", std::int64_t{12}, [](SettingsState& s) { s.tickCount = 12; }},
        {L"AutoScaleCheckbox", false, [](SettingsState& s) { s.useManualMagnitudeLimits = 1; }},
        {L"AutoScaleCheckbox", true, [](SettingsState& s) { s.useManualMagnitudeLimits = 0; }},
        {L"AutoScaleType", std::int64_t{1}, [](SettingsState& s) { s.autoScaleType = 1; }},
        {L"SingleAxis", false, [](SettingsState& s) { s.singleAxis = false; }},
        {L"HistoryTime", 12.5, [](SettingsState& s) { s.displayTime = 12.5; }},
        {L"HistoryRevolutions", std::int64_t{25}, [](SettingsState& s) { s.revolutions = 25; }},
        {L"Clearance", true, [](SettingsState& s) { s.drawClearance = true; }},
        {L"ClearanceColor", std::int64_t{-5}, [](SettingsState& s) { s.clearanceColor = -5; }},
        {L"DisplayType", std::int64_t{1}, [](SettingsState& s) { s.displayType = 1; }},
        {L"GraphType", std::int64_t{1}, [](SettingsState& s) { s.graphType = 1; }},
        {L"HistoryType", std::int64_t{1}, [](SettingsState& s) { s.historyType = 1; }},
        {L"ShowOnlyLastPositionCheckBox", true,
         [](SettingsState& s) { s.showOnlyLastPosition = true; }},
    };
    control.buildProperties(host.panel());
    SettingsState expected;
    for (const Case& c : cases) {
        change(c.name, c.value);
        c.change(expected);
        EXPECT_EQ(state(), expected) << testing::PrintToString(c.name);
    }
}

TEST_F(ChangedWidget, IsAskedForItsNameAndItsValueAndNothingElseIsTouched) {
    const std::pair<std::string, std::string> reads[] = {
        {"TickCount", "IHostNumberEdit.GetValue"},
        {"AutoScaleCheckbox", "IHostCheckBox.GetChecked"},
        {"AutoScaleType", "IHostComboBox.GetIndex"},
        {"SingleAxis", "IHostCheckBox.GetChecked"},
        {"HistoryTime", "IHostFloatEdit.GetValue"},
        {"HistoryRevolutions", "IHostNumberEdit.GetValue"},
        {"Clearance", "IHostCheckBox.GetChecked"},
        {"ClearanceColor", "IHostColorEdit.GetColor"},
        {"DisplayType", "IHostComboBox.GetIndex"},
        {"GraphType", "IHostComboBox.GetIndex"},
        {"HistoryType", "IHostComboBox.GetIndex"},
        {"ShowOnlyLastPositionCheckBox", "IHostCheckBox.GetChecked"},
    };
    buildAndFill();
    host.record();
    for (const auto& [name, read] : reads) {
        control.readProperty(L"", widget(std::wstring(name.begin(), name.end())));
        const Lines calls = host.takeCalls();
        ASSERT_EQ(calls.size(), 2U) << name;
        EXPECT_EQ(calls[0], "IHostPropertyControl.GetName[" + name + "]() -> \"" + name + "\"");
        EXPECT_TRUE(calls[1].starts_with(read + "[" + name + "]() -> ")) << calls[1];
    }
}

TEST_F(ChangedWidget, IsNotHeldToTheLimitsOfThePanel) {
    control.buildProperties(host.panel());
    change(L"TickCount", std::int64_t{-3});
    change(L"HistoryTime", 1e300);
    change(L"HistoryRevolutions", std::int64_t{1000});
    change(L"GraphType", std::int64_t{7});
    change(L"HistoryType", std::int64_t{-1});
    change(L"AutoScaleType", std::int64_t{9});
    EXPECT_EQ(state().tickCount, -3);
    EXPECT_EQ(state().displayTime, 1e300);
    EXPECT_EQ(state().revolutions, 1000);
    EXPECT_EQ(state().graphType, 7);
    EXPECT_EQ(state().historyType, -1);
    EXPECT_EQ(state().autoScaleType, 9);
}

TEST_F(ChangedWidget, OfTheTickCountMakesTheNextLayoutRunInFull) {
    control.buildProperties(host.panel());
    ASSERT_TRUE(key.graph.state().layoutValid);
    change(L"SingleAxis", false);
    EXPECT_TRUE(key.graph.state().layoutValid);
    change(L"TickCount", std::int64_t{5});
    EXPECT_FALSE(key.graph.state().layoutValid);
}

TEST_F(ChangedWidget, OfTheGraphTypeSquaresTheLimitsOnceOnTheWayToACircle) {
    const auto limits = [&] {
        const SettingsState s = state();
        return std::vector{s.minXValue, s.maxXValue, s.minYValue, s.maxYValue};
    };
    control.buildProperties(host.panel());
    key.graph.setXMin(-1);
    key.graph.setXMax(2);
    key.graph.setYMin(-3);
    key.graph.setYMax(0.5);
    change(L"GraphType", std::int64_t{1});
    EXPECT_EQ(limits(), (std::vector{-3.0, 3.0, -3.0, 3.0}));
    key.graph.setXMin(-1);
    change(L"GraphType", std::int64_t{1});
    EXPECT_EQ(limits(), (std::vector{-1.0, 3.0, -3.0, 3.0})) << "it is a circle already";
    change(L"GraphType", std::int64_t{0});
    EXPECT_EQ(limits(), (std::vector{-1.0, 3.0, -3.0, 3.0}));
}

TEST_F(ChangedWidget, OfAnUnknownNameChangesNothing) {
    const std::wstring names[] = {
        L"tickCount",  L"TICKCOUNT", L"TickCount ", L"Tick",
        L"TickCounts", L"",          L"X",          std::wstring(L"TickCount\0", 10)};
    for (const std::wstring& name : names) {
        // A known name would ask for the widget's own kind, which these don't have.
        EXPECT_NO_THROW(control.readProperty(L"TickCount", widget(name)));
        EXPECT_EQ(state(), SettingsState{}) << testing::PrintToString(name);
    }
}

TEST_F(ChangedWidget, ThatIsNullOrOfAnotherKindIsRefused) {
    EXPECT_EQ(statusOf([&] { control.readProperty(L"", nullptr); }), 0x80004003U);
    // Widgets that the control did not make offer no kind of their own.
    for (const wchar_t* name :
         {L"TickCount", L"AutoScaleCheckbox", L"AutoScaleType", L"SingleAxis", L"HistoryTime",
          L"HistoryRevolutions", L"Clearance", L"ClearanceColor", L"DisplayType", L"GraphType",
          L"HistoryType", L"ShowOnlyLastPositionCheckBox"})
        EXPECT_EQ(statusOf([&] { control.readProperty(L"", widget(name)); }), 0x80004003U)
            << testing::PrintToString(name);
    EXPECT_EQ(state(), SettingsState{});
}

TEST_F(ChangedWidget, MayBeReadBeforeAnyPanelWasFilled) {
    control.buildProperties(host.panel());
    change(L"HistoryRevolutions", std::int64_t{2});
    EXPECT_EQ(state().revolutions, 2);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
