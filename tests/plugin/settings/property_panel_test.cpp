#include "tests/plugin/settings/panel_test.h"
#include "tests/plugin/setup_document/entry_node.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

using BuiltPanel = PanelTest;
using FilledPanel = PanelTest;
using PanelRules = PanelTest;

TEST_F(BuiltPanel, SetsNoValueButTheCheckOfTheSingleAxis) {
    key.graph.setSingleAxis(false);
    key.graph.setTickCount(17);
    control.buildProperties(host.panel());
    const auto singleAxis = host.widget(L"SingleAxis").offered<Host::IHostCheckBox>();
    EXPECT_TRUE(singleAxis->GetChecked());
    EXPECT_FALSE(key.graph.singleAxis());
    EXPECT_EQ(host.widget(L"TickCount").offered<Host::IHostNumberEdit>()->GetValue(), 0);
}

TEST_F(BuiltPanel, StaysAtItsLastPageAlsoAfterFilling) {
    control.buildProperties(host.panel());
    EXPECT_EQ(key.propertyRoot, host.panel()->GetPage(L"Advanced"));
    control.fillProperties(host.panel());
    EXPECT_EQ(key.propertyRoot, host.panel()->GetPage(L"Advanced"));
}

TEST_F(BuiltPanel, GivesEveryReferenceBackWithTheControl) {
    {
        RotavueVisualControl other;
        other.buildProperties(host.panel());
        other.fillProperties(host.panel());
        EXPECT_EQ(host.references(), 1) << "the page that it works on";
    }
    EXPECT_EQ(host.references(), 0);
}

TEST_F(FilledPanel, ShowsEverySetting) {
    putState(control, unusualState());
    key.graph.setGraphType(0);
    buildAndFill();
    const auto number = [&](const wchar_t* name) {
        return host.widget(name).offered<Host::IHostNumberEdit>()->GetValue();
    };
    const auto index = [&](const wchar_t* name) {
        return host.widget(name).offered<Host::IHostComboBox>()->GetIndex();
    };
    const auto checked = [&](const wchar_t* name) {
        return host.widget(name).offered<Host::IHostCheckBox>()->GetChecked();
    };
    EXPECT_EQ(number(L"TickCount"), 9);
    EXPECT_FALSE(checked(L"AutoScaleCheckbox")) << "manual limits are no auto scale";
    EXPECT_EQ(index(L"AutoScaleType"), 1);
    EXPECT_FALSE(checked(L"SingleAxis"));
    EXPECT_EQ(index(L"GraphType"), 0);
    EXPECT_EQ(index(L"DisplayType"), 1);
    EXPECT_TRUE(checked(L"Clearance"));
    EXPECT_EQ(host.widget(L"ClearanceColor").offered<Host::IHostColorEdit>()->GetColor(), -7);
    EXPECT_EQ(index(L"HistoryType"), 1);
    EXPECT_EQ(host.widget(L"HistoryTime").offered<Host::IHostFloatEdit>()->GetValue(), 250.5);
    EXPECT_EQ(number(L"HistoryRevolutions"), 3);
    EXPECT_TRUE(checked(L"ShowOnlyLastPositionCheckBox"));
}

TEST_F(PanelRules, ScaleACircleAbsolutelyAndLeaveItSoInTheGrid) {
    buildAndFill();
    change(L"AutoScaleType", std::int64_t{1});
    change(L"GraphType", std::int64_t{1});
    EXPECT_EQ(state().autoScaleType, 1) << "only filling changes it";
    EXPECT_EQ(callsOn("AutoScaleType"),
              (Lines{"IHostComboBox.SetIndex[AutoScaleType](1)",
                     "IHostPropertyControl.SetEnabled[AutoScaleType](false)",
                     "IHostComboBox.SetIndex[AutoScaleType](0)"}));
    EXPECT_EQ(state().autoScaleType, 0);
    change(L"GraphType", std::int64_t{0});
    EXPECT_EQ(callsOn("AutoScaleType"),
              (Lines{"IHostComboBox.SetIndex[AutoScaleType](0)",
                     "IHostPropertyControl.SetEnabled[AutoScaleType](true)"}));
    EXPECT_EQ(state().autoScaleType, 0);
}

TEST_F(PanelRules, EnableTheScaleTypeForAGridWithAutoScaleAlone) {
    struct Case {
        std::int32_t manualLimits;
        std::int32_t graphType;
        bool enabled;
        std::int32_t scaleType;  // after filling; it was 1
    };
    buildAndFill();
    for (const Case& c : {Case{0, 0, true, 1},
                          {1, 0, false, 1},
                          {0, 1, false, 0},
                          {1, 1, false, 0},
                          {0, 7, false, 0},
                          {0, -1, false, 0}}) {
        key.graph.setManualLimits(c.manualLimits);
        key.graph.setGraphType(c.graphType);
        key.graph.setAutoScaleType(1);
        const Lines calls = callsOn("AutoScaleType");
        EXPECT_EQ(calls[1], std::string("IHostPropertyControl.SetEnabled[AutoScaleType](") +
                                (c.enabled ? "true)" : "false)"))
            << c.manualLimits << ' ' << c.graphType;
        EXPECT_EQ(state().autoScaleType, c.scaleType) << c.manualLimits << ' ' << c.graphType;
    }
}

TEST_F(PanelRules, DisableTheScaleTypeWithoutAutoScale) {
    buildAndFill();
    change(L"AutoScaleCheckbox", false);
    EXPECT_EQ(state().useManualMagnitudeLimits, 1);
    EXPECT_EQ(callsOn("AutoScaleType"),
              (Lines{"IHostComboBox.SetIndex[AutoScaleType](0)",
                     "IHostPropertyControl.SetEnabled[AutoScaleType](false)"}));
}

TEST_F(PanelRules, ShowTheLengthThatTheHistoryTypeUsesAndKeepTheOther) {
    buildAndFill();
    change(L"HistoryRevolutions", std::int64_t{4});
    change(L"HistoryType", std::int64_t{1});
    EXPECT_EQ(callsOn("HistoryTime"), (Lines{"IHostPropertyControl.SetVisible[HistoryTime](true)",
                                             "IHostFloatEdit.SetValue[HistoryTime](100)"}));
    EXPECT_EQ(callsOn("HistoryRevolutions"),
              (Lines{"IHostPropertyControl.SetVisible[HistoryRevolutions](false)",
                     "IHostNumberEdit.SetValue[HistoryRevolutions](4)"}));
    EXPECT_EQ(state().revolutions, 4);
    Tests::EntryNode node;
    node.writing = true;
    control.persistSetup(node);
    EXPECT_EQ(node.entries.at("revolutions"), "4") << "it stays in the setup";
}

TEST_F(PanelRules, HideBothLengthsForAnUnknownHistoryType) {
    buildAndFill();
    key.graph.setHistoryType(7);
    EXPECT_EQ(callsOn("HistoryTime").front(),
              "IHostPropertyControl.SetVisible[HistoryTime](false)");
    EXPECT_EQ(callsOn("HistoryRevolutions").front(),
              "IHostPropertyControl.SetVisible[HistoryRevolutions](false)");
}

TEST_F(PanelRules, DisableTheHistoryTypeWhileATachoIsMissing) {
    buildAndFill();
    key.tachoMissing = true;
    EXPECT_EQ(callsOn("HistoryType"),
              (Lines{"IHostComboBox.SetIndex[HistoryType](0)",
                     "IHostPropertyControl.SetEnabled[HistoryType](false)"}));
}

TEST_F(PanelRules, DisableTheColorWithoutClearanceAndStillShowIt) {
    key.graph.setClearanceColor(0x123456);
    buildAndFill();
    // 0x123456 = 1193046.
    EXPECT_EQ(callsOn("ClearanceColor"),
              (Lines{"IHostPropertyControl.SetEnabled[ClearanceColor](false)",
                     "IHostColorEdit.SetColor[ClearanceColor](1193046)"}));
    change(L"Clearance", true);
    EXPECT_EQ(callsOn("ClearanceColor").front(),
              "IHostPropertyControl.SetEnabled[ClearanceColor](true)");
}

// A host whose user takes the check off again before it is read back.
class Unchecking final : public ::Rotavue::HostKit::CallWatcher {
public:
    explicit Unchecking(::Rotavue::HostKit::MemoryHost& host) : host_(host) {}

    void onCall(::Rotavue::HostKit::Operation operation) override {
        if (operation == ::Rotavue::HostKit::operation("IHostCheckBox.GetChecked"))
            host_.setWidget(L"Clearance", false);
    }

    void onReturn(const ::Rotavue::HostKit::Call& call) override { lines.push_back(toText(call)); }

    std::vector<std::string> lines;

private:
    ::Rotavue::HostKit::MemoryHost& host_;
};

TEST_F(PanelRules, LetTheColorFollowTheWidgetAndNotTheSetting) {
    buildAndFill();
    key.graph.setDrawClearance(true);
    Unchecking watcher(host);
    host.gate.watch(&watcher, ::Rotavue::HostKit::allGroups());
    control.fillProperties(host.panel());
    host.gate.watch(nullptr, {});
    EXPECT_TRUE(std::ranges::count(watcher.lines, "IHostCheckBox.SetChecked[Clearance](true)"));
    EXPECT_TRUE(std::ranges::count(watcher.lines,
                                   "IHostPropertyControl.SetEnabled[ClearanceColor](false)"));
    EXPECT_TRUE(state().drawClearance);
}

TEST_F(FilledPanel, HandsAnUnknownDisplayTypeOnAsItStands) {
    key.graph.setDisplayType(7);
    buildAndFill();
    EXPECT_EQ(callsOn("DisplayType"), (Lines{"IHostComboBox.SetIndex[DisplayType](7)"}));
}

// The widgets in the order of filling; the colour is looked up twice.
const std::vector<std::string> FillingOrder = {
    "TickCount",
    "SingleAxis",
    "AutoScaleCheckbox",
    "AutoScaleType",
    "HistoryTime",
    "HistoryRevolutions",
    "DisplayType",
    "GraphType",
    "HistoryType",
    "Clearance",
    "ClearanceColor",
    "ClearanceColor",
    "ShowOnlyLastPositionCheckBox",
};

TEST_F(FilledPanel, LeavesOutTheStepsOfAWidgetThatIsNotThere) {
    buildAndFill();
    const Lines whole = callsOfFilling();
    for (const std::string& hidden : FillingOrder) {
        host.description.panel.hidden = {std::wstring(hidden.begin(), hidden.end())};
        Lines expected;
        int lookUps = 0;
        for (std::string line : whole) {
            if (line.find("[" + hidden + "]") != std::string::npos) continue;
            const bool isLookUp = line.find("(\"" + hidden + "\")") != std::string::npos;
            if (isLookUp) line = line.substr(0, line.find(" -> ")) + " -> null";
            // Without the check box, the enabling of the colour is left out whole.
            const bool isColor = line.find("ClearanceColor") != std::string::npos;
            if (hidden == "Clearance" && isColor && ++lookUps <= 2) continue;
            expected.push_back(line);
        }
        EXPECT_EQ(callsOfFilling(), expected) << hidden;
    }
}

TEST_F(FilledPanel, LeavesTheScaleTypeOfACircleAloneWhenItsWidgetIsNotThere) {
    buildAndFill();
    host.description.panel.hidden = {L"AutoScaleType"};
    key.graph.setGraphType(1);
    key.graph.setAutoScaleType(1);
    control.fillProperties(host.panel());
    EXPECT_EQ(state().autoScaleType, 1);
}

TEST_F(FilledPanel, ChangesNoSettingButTheScaleTypeOfACircle) {
    SettingsState expected = unusualState();
    putState(control, expected);
    buildAndFill();
    expected.autoScaleType = 0;
    EXPECT_EQ(state(), expected);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
