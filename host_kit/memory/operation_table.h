#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace Rotavue::HostKit {

/// The groups in which a log shows or hides the calls of the plug-in.
enum class CallGroup : std::uint8_t { Draw, Measure, Panel, Setup, Control, Data };

inline constexpr std::array<std::string_view, 6> CallGroupNames{"draw",  "measure", "panel",
                                                                "setup", "control", "data"};

/// What an operation answers, as far as a fault can use it.
enum class Answer : std::uint8_t { Plain, Object };

/// One operation of the 28 host interfaces.
struct OperationRow {
    std::string_view name;  ///< "IHostApp.getData"
    CallGroup group;
    Answer answer = Answer::Plain;
};

/// Every operation that a host implements. The order is that of the interfaces' headers and means
/// nothing.
inline constexpr auto OperationTable = std::to_array<OperationRow>({
    {"IHostApp.getData", CallGroup::Data, Answer::Object},
    {"IHostApp.showMessage", CallGroup::Control},
    {"IHostApp.isAcquiring", CallGroup::Data},
    {"IHostApp.getVersion", CallGroup::Data},
    {"IHostApp.createChannelList", CallGroup::Data, Answer::Object},
    {"IHostApp.GetXmlFactory", CallGroup::Data, Answer::Object},

    {"IHostData.getBlockSize", CallGroup::Data},
    {"IHostData.getCurrentPosition", CallGroup::Data},
    {"IHostData.getAcquiredSampleCount", CallGroup::Data},
    {"IHostData.getFirstPosition", CallGroup::Data},
    {"IHostData.getLastPosition", CallGroup::Data},
    {"IHostData.isWholeDataset", CallGroup::Data},
    {"IHostData.getSampleRate", CallGroup::Data},

    {"IHostVisualControl.getChannels", CallGroup::Data, Answer::Object},
    {"IHostVisualControl.invalidate", CallGroup::Control},
    {"IHostVisualControl.getGroups", CallGroup::Data, Answer::Object},
    {"IHostVisualControl.requestData", CallGroup::Control},
    {"IHostVisualControl.refreshSetup", CallGroup::Control},
    {"IHostVisualControl.editText", CallGroup::Control},
    {"IHostVisualControl.getSlots", CallGroup::Data, Answer::Object},

    {"IHostSlotList.getSlot", CallGroup::Data, Answer::Object},
    {"IHostSlot.getKind", CallGroup::Data},

    {"IHostChannelCollection.getCount", CallGroup::Data},
    {"IHostChannelCollection.getItem", CallGroup::Data, Answer::Object},
    {"IHostGroupCollection.getCount", CallGroup::Data},
    {"IHostGroupCollection.getItem", CallGroup::Data, Answer::Object},

    {"IHostChannelList.add", CallGroup::Data},
    {"IHostChannelList.clear", CallGroup::Data},
    {"IHostChannelList.getCount", CallGroup::Data},
    {"IHostChannelList.getItem", CallGroup::Data, Answer::Object},

    {"IHostChannel.getBufferSize", CallGroup::Data},
    {"IHostChannel.getSampleCount", CallGroup::Data},
    {"IHostChannel.getWritePosition", CallGroup::Data},
    {"IHostChannel.getName", CallGroup::Data},
    {"IHostChannel.getTimestamp", CallGroup::Data},
    {"IHostChannel.isAsynchronous", CallGroup::Data},
    {"IHostChannel.getUnit", CallGroup::Data},
    {"IHostChannel.getColor", CallGroup::Data},
    {"IHostChannel.getDisplayValue", CallGroup::Data},
    {"IHostChannel.getSampleCounter", CallGroup::Data},
    {"IHostChannel.getRateDivider", CallGroup::Data},
    {"IHostChannel.getAxes", CallGroup::Data, Answer::Object},
    {"IHostChannel.isArray", CallGroup::Data},
    {"IHostChannel.getArraySize", CallGroup::Data},
    {"IHostChannel.getStorageKind", CallGroup::Data},
    {"IHostChannel.scaleValue", CallGroup::Data},
    {"IHostChannel.getProperties", CallGroup::Data, Answer::Object},
    {"IHostChannel.getValueAtTime", CallGroup::Data},
    {"IHostChannel.getValue", CallGroup::Data},
    {"IHostChannel.getSampleRate", CallGroup::Data},
    {"IHostChannel.getDecimals", CallGroup::Data},

    {"IHostProperties.getValue", CallGroup::Data},
    {"IHostGroupInfo.getProperties", CallGroup::Data, Answer::Object},
    {"IHostAxisList.getAxis", CallGroup::Data, Answer::Object},
    {"IHostAxis.getStart", CallGroup::Data},
    {"IHostAxis.getStep", CallGroup::Data},

    {"IHostCanvas.LineTo", CallGroup::Draw},
    {"IHostCanvas.MoveTo", CallGroup::Draw},
    {"IHostCanvas.Ellipse", CallGroup::Draw},
    {"IHostCanvas.Rectangle", CallGroup::Draw},
    {"IHostCanvas.TextOut", CallGroup::Draw},
    {"IHostCanvas.GetBrush", CallGroup::Measure, Answer::Object},
    {"IHostCanvas.GetPen", CallGroup::Measure, Answer::Object},
    {"IHostCanvas.GetFont", CallGroup::Measure, Answer::Object},
    {"IHostCanvas.Arc", CallGroup::Draw},
    {"IHostCanvas.TextWidth", CallGroup::Measure},
    {"IHostCanvas.TextHeight", CallGroup::Measure},
    {"IHostCanvas.TextRect", CallGroup::Draw},
    {"IHostCanvas.Polygon", CallGroup::Draw},

    {"IHostPen.SetColor", CallGroup::Draw},
    {"IHostPen.SetWidth", CallGroup::Draw},
    {"IHostPen.SetStyle", CallGroup::Draw},
    {"IHostBrush.SetColor", CallGroup::Draw},
    {"IHostBrush.SetStyle", CallGroup::Draw},
    {"IHostFont.SetColor", CallGroup::Draw},
    {"IHostFont.GetHeight", CallGroup::Measure},
    {"IHostFont.SetHeight", CallGroup::Draw},
    {"IHostFont.SetStyle", CallGroup::Draw},
    {"IHostFont.SetOrientation", CallGroup::Draw},

    {"IHostPropertyPanel.GetPage", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPanel.AddPage", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.AddGroup", CallGroup::Panel},
    {"IHostPropertyPage.AddNumberEdit", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.FindControl", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.AddColorEdit", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.AddFloatEdit", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.AddComboBox", CallGroup::Panel, Answer::Object},
    {"IHostPropertyPage.AddCheckBox", CallGroup::Panel, Answer::Object},
    {"IHostPropertyControl.GetName", CallGroup::Panel},
    {"IHostPropertyControl.SetVisible", CallGroup::Panel},
    {"IHostPropertyControl.SetEnabled", CallGroup::Panel},
    {"IHostPropertyControl.SetFlag", CallGroup::Panel},
    {"IHostCheckBox.GetChecked", CallGroup::Panel},
    {"IHostCheckBox.SetChecked", CallGroup::Panel},
    {"IHostComboBox.GetIndex", CallGroup::Panel},
    {"IHostComboBox.SetIndex", CallGroup::Panel},
    {"IHostComboBox.AddItem", CallGroup::Panel},
    {"IHostFloatEdit.GetValue", CallGroup::Panel},
    {"IHostFloatEdit.SetValue", CallGroup::Panel},
    {"IHostFloatEdit.SetMin", CallGroup::Panel},
    {"IHostFloatEdit.SetMax", CallGroup::Panel},
    {"IHostColorEdit.GetColor", CallGroup::Panel},
    {"IHostColorEdit.SetColor", CallGroup::Panel},
    {"IHostNumberEdit.GetValue", CallGroup::Panel},
    {"IHostNumberEdit.SetValue", CallGroup::Panel},
    {"IHostNumberEdit.SetMin", CallGroup::Panel},
    {"IHostNumberEdit.SetMax", CallGroup::Panel},

    {"IHostXmlFactory.CreateDocument", CallGroup::Setup, Answer::Object},
    {"IHostXmlDocument.GetRootNode", CallGroup::Setup, Answer::Object},
    {"IHostXmlDocument.SetRootNode", CallGroup::Setup},
    {"IHostXmlDocument.CreateNode", CallGroup::Setup, Answer::Object},
    {"IHostXmlDocument.WriteValue", CallGroup::Setup},
    {"IHostXmlDocument.ReadValue", CallGroup::Setup},
    {"IHostXmlDocument.GetMode", CallGroup::Setup},
    {"IHostXmlDocument.SetMode", CallGroup::Setup},
    {"IHostXmlNode.SetValue", CallGroup::Setup},
    {"IHostXmlNode.AppendChild", CallGroup::Setup},
    {"IHostXmlNode.RemoveChild", CallGroup::Setup},
    {"IHostXmlNode.ClearChildren", CallGroup::Setup},
    {"IHostXmlNode.FindChild", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.GetChild", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.GetChildCount", CallGroup::Setup},
    {"IHostXmlNode.Clone", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.GetParent", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.AppendAttribute", CallGroup::Setup},
    {"IHostXmlNode.RemoveAttribute", CallGroup::Setup},
    {"IHostXmlNode.FindAttribute", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.GetAttribute", CallGroup::Setup, Answer::Object},
    {"IHostXmlNode.GetAttributeCount", CallGroup::Setup},
    {"IHostXmlNode.ClearAttributes", CallGroup::Setup},
    {"IHostXmlNode.GetName", CallGroup::Setup},
    {"IHostXmlNode.GetValue", CallGroup::Setup},
});

}  // namespace Rotavue::HostKit
