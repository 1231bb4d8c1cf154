// Building and filling the property panel, call by call.

#include "tests/plugin/settings/panel_test.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

using BuiltPanel = PanelTest;
using FilledPanel = PanelTest;

std::string joined(const std::vector<std::string>& lines) {
    std::string text = "\n";
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

constexpr const char* Building = R"calls(
IHostPropertyPanel.AddPage("Axis") -> "page:Axis"
IHostPropertyPage.AddGroup[Axis]("Axis")
IHostPropertyPage.AddNumberEdit[Axis]("TickCount", "Number of ticks") -> "widget:TickCount"
IHostNumberEdit.SetMin[TickCount](0)
IHostNumberEdit.SetMax[TickCount](20)
IHostPropertyPage.AddCheckBox[Axis]("AutoScaleCheckbox", "Auto scale") -> "widget:AutoScaleCheckbox"
IHostPropertyPage.AddComboBox[Axis]("AutoScaleType", "Auto scale type") -> "widget:AutoScaleType"
IHostComboBox.AddItem[AutoScaleType]("Absolute")
IHostComboBox.AddItem[AutoScaleType]("Relative")
IHostPropertyPage.AddCheckBox[Axis]("SingleAxis", "Single axis") -> "widget:SingleAxis"
IHostCheckBox.SetChecked[SingleAxis](true)
IHostPropertyPanel.AddPage("Advanced") -> "page:Advanced"
IHostPropertyPage.AddGroup[Advanced]("Drawing Options")
IHostPropertyPage.AddComboBox[Advanced]("GraphType", "Graph type") -> "widget:GraphType"
IHostComboBox.AddItem[GraphType]("Grid")
IHostComboBox.AddItem[GraphType]("Circle")
IHostPropertyPage.AddComboBox[Advanced]("DisplayType", "Display type") -> "widget:DisplayType"
IHostComboBox.AddItem[DisplayType]("RPM")
IHostComboBox.AddItem[DisplayType]("Time")
IHostPropertyPage.AddCheckBox[Advanced]("Clearance", "Clearance") -> "widget:Clearance"
IHostPropertyPage.AddColorEdit[Advanced]("ClearanceColor", "Color") -> "widget:ClearanceColor"
IHostPropertyControl.SetFlag[ClearanceColor](1)
IHostPropertyPage.AddComboBox[Advanced]("HistoryType", "History type") -> "widget:HistoryType"
IHostComboBox.AddItem[HistoryType]("Revolutions")
IHostComboBox.AddItem[HistoryType]("Time")
IHostPropertyPage.AddFloatEdit[Advanced]("HistoryTime", "Display time (ms)") -> "widget:HistoryTime"
IHostFloatEdit.SetMin[HistoryTime](1)
IHostFloatEdit.SetMax[HistoryTime](10000)
IHostPropertyPage.AddNumberEdit[Advanced]("HistoryRevolutions", "Revolutions") -> "widget:HistoryRevolutions"
IHostNumberEdit.SetMin[HistoryRevolutions](1)
IHostNumberEdit.SetMax[HistoryRevolutions](25)
IHostPropertyPage.AddCheckBox[Advanced]("ShowOnlyLastPositionCheckBox", "Show only last position") -> "widget:ShowOnlyLastPositionCheckBox"
)calls";

constexpr const char* Filling = R"calls(
IHostPropertyPanel.GetPage("Axis") -> "page:Axis"
IHostPropertyPage.FindControl[Axis]("TickCount") -> "widget:TickCount"
IHostNumberEdit.SetValue[TickCount](5)
IHostPropertyPage.FindControl[Axis]("SingleAxis") -> "widget:SingleAxis"
IHostCheckBox.SetChecked[SingleAxis](true)
IHostPropertyPage.FindControl[Axis]("AutoScaleCheckbox") -> "widget:AutoScaleCheckbox"
IHostCheckBox.SetChecked[AutoScaleCheckbox](true)
IHostPropertyPage.FindControl[Axis]("AutoScaleType") -> "widget:AutoScaleType"
IHostComboBox.SetIndex[AutoScaleType](0)
IHostPropertyControl.SetEnabled[AutoScaleType](true)
IHostPropertyPanel.GetPage("Advanced") -> "page:Advanced"
IHostPropertyPage.FindControl[Advanced]("HistoryTime") -> "widget:HistoryTime"
IHostPropertyControl.SetVisible[HistoryTime](false)
IHostFloatEdit.SetValue[HistoryTime](100)
IHostPropertyPage.FindControl[Advanced]("HistoryRevolutions") -> "widget:HistoryRevolutions"
IHostPropertyControl.SetVisible[HistoryRevolutions](true)
IHostNumberEdit.SetValue[HistoryRevolutions](1)
IHostPropertyPage.FindControl[Advanced]("DisplayType") -> "widget:DisplayType"
IHostComboBox.SetIndex[DisplayType](0)
IHostPropertyPage.FindControl[Advanced]("GraphType") -> "widget:GraphType"
IHostComboBox.SetIndex[GraphType](0)
IHostPropertyPage.FindControl[Advanced]("HistoryType") -> "widget:HistoryType"
IHostComboBox.SetIndex[HistoryType](0)
IHostPropertyControl.SetEnabled[HistoryType](true)
IHostPropertyPage.FindControl[Advanced]("Clearance") -> "widget:Clearance"
IHostCheckBox.SetChecked[Clearance](false)
IHostCheckBox.GetChecked[Clearance]() -> false
IHostPropertyPage.FindControl[Advanced]("ClearanceColor") -> "widget:ClearanceColor"
IHostPropertyControl.SetEnabled[ClearanceColor](false)
IHostPropertyPage.FindControl[Advanced]("ClearanceColor") -> "widget:ClearanceColor"
IHostColorEdit.SetColor[ClearanceColor](16750848)
IHostPropertyPage.FindControl[Advanced]("ShowOnlyLastPositionCheckBox") -> "widget:ShowOnlyLastPositionCheckBox"
IHostCheckBox.SetChecked[ShowOnlyLastPositionCheckBox](false)
)calls";

TEST_F(BuiltPanel, HasTwoPagesAndTwelveWidgetsWithTheirLimitsAndItems) {
    EXPECT_EQ(joined(callsOfBuilding()), Building);
}

TEST_F(BuiltPanel, IsBuiltAnewForAnotherPanel) {
    callsOfBuilding();
    EXPECT_EQ(joined(callsOfBuilding()), Building);
}

TEST_F(FilledPanel, ShowsTheSettingsOfANewControlInItsOwnOrder) {
    buildAndFill();
    EXPECT_EQ(joined(callsOfFilling()), Filling);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
