#include "tests/host_kit/memory/every_operation.h"

namespace Rotavue::HostKit {

namespace {

using Host::Ref;

Ref<Host::IHostChannel> a(MemoryHost& host) {
    return host.channel("a");
}

Ref<Host::IHostChannelList> group(MemoryHost& host) {
    return host.group(0).offered<Host::IHostChannelList>();
}

Ref<Host::IHostPropertyPage> page(MemoryHost& host) {
    return host.panel()->AddPage(L"p");
}

template <class Interface>
Ref<Interface> widget(MemoryHost& host,
                      Ref<Interface> (Host::IHostPropertyPage::*add)(const std::wstring&,
                                                                     const std::wstring&)) {
    return ((*page(host)).*add)(L"w", L"caption");
}

Ref<Host::IHostCheckBox> checkBox(MemoryHost& host) {
    return widget(host, &Host::IHostPropertyPage::AddCheckBox);
}

Ref<Host::IHostComboBox> comboBox(MemoryHost& host) {
    return widget(host, &Host::IHostPropertyPage::AddComboBox);
}

Ref<Host::IHostFloatEdit> floatEdit(MemoryHost& host) {
    return widget(host, &Host::IHostPropertyPage::AddFloatEdit);
}

Ref<Host::IHostColorEdit> colorEdit(MemoryHost& host) {
    return widget(host, &Host::IHostPropertyPage::AddColorEdit);
}

Ref<Host::IHostNumberEdit> numberEdit(MemoryHost& host) {
    return widget(host, &Host::IHostPropertyPage::AddNumberEdit);
}

Ref<Host::IHostPropertyControl> control(MemoryHost& host) {
    return checkBox(host).offered<Host::IHostPropertyControl>();
}

Ref<Host::IHostXmlNode> newNode(MemoryHost& host) {
    return host.document()->CreateNode(L"n", L"v");
}

void readAtTime(MemoryHost& host) {
    std::int32_t cursor = 7;
    a(host)->getValueAtTime(0.0, cursor, 0, 0, 4);
}

void edit(MemoryHost& host) {
    std::wstring text = L"before";
    host.control()->editText(1, 2, text);
}

void readValue(MemoryHost& host) {
    std::wstring text = L"before";
    host.document()->ReadValue(*host.node(), L"k", text, L"default");
}

std::vector<OperationCall> dataOperations() {
    return {
        {"IHostApp.getData", [](auto& h) { h.app()->getData(); }},
        {"IHostApp.showMessage", [](auto& h) { h.app()->showMessage(L"text"); }},
        {"IHostApp.isAcquiring", [](auto& h) { h.app()->isAcquiring(); }},
        {"IHostApp.getVersion", [](auto& h) { h.app()->getVersion(); }},
        {"IHostApp.createChannelList", [](auto& h) { h.app()->createChannelList(); }},
        {"IHostApp.GetXmlFactory", [](auto& h) { h.app()->GetXmlFactory(); }},
        {"IHostData.getBlockSize", [](auto& h) { h.data()->getBlockSize(); }},
        {"IHostData.getCurrentPosition", [](auto& h) { h.data()->getCurrentPosition(); }},
        {"IHostData.getAcquiredSampleCount", [](auto& h) { h.data()->getAcquiredSampleCount(); }},
        {"IHostData.getFirstPosition", [](auto& h) { h.data()->getFirstPosition(); }},
        {"IHostData.getLastPosition", [](auto& h) { h.data()->getLastPosition(); }},
        {"IHostData.isWholeDataset", [](auto& h) { h.data()->isWholeDataset(); }},
        {"IHostData.getSampleRate", [](auto& h) { h.data()->getSampleRate(); }},
        {"IHostVisualControl.getChannels", [](auto& h) { h.control()->getChannels(); }},
        {"IHostVisualControl.invalidate", [](auto& h) { h.control()->invalidate(); }},
        {"IHostVisualControl.getGroups", [](auto& h) { h.control()->getGroups(); }},
        {"IHostVisualControl.requestData",
         [](auto& h) {
             h.control()->requestData({1, 2}, {3, 4}, 0, true, *group(h));
         }},
        {"IHostVisualControl.refreshSetup", [](auto& h) { h.control()->refreshSetup(); }},
        {"IHostVisualControl.editText", edit},
        {"IHostVisualControl.getSlots", [](auto& h) { h.control()->getSlots(); }},
        {"IHostSlotList.getSlot", [](auto& h) { h.control()->getSlots()->getSlot(0); }},
        {"IHostSlot.getKind", [](auto& h) { h.control()->getSlots()->getSlot(0)->getKind(); }},
        {"IHostChannelCollection.getCount",
         [](auto& h) { h.control()->getChannels()->getCount(); }},
        {"IHostChannelCollection.getItem", [](auto& h) { h.control()->getChannels()->getItem(0); }},
        {"IHostGroupCollection.getCount", [](auto& h) { h.control()->getGroups()->getCount(); }},
        {"IHostGroupCollection.getItem", [](auto& h) { h.control()->getGroups()->getItem(0); }},
        {"IHostChannelList.add", [](auto& h) { group(h)->add(*a(h)); }},
        {"IHostChannelList.clear", [](auto& h) { group(h)->clear(); }},
        {"IHostChannelList.getCount", [](auto& h) { group(h)->getCount(); }},
        {"IHostChannelList.getItem", [](auto& h) { group(h)->getItem(0); }},
    };
}

std::vector<OperationCall> channelOperations() {
    return {
        {"IHostChannel.getBufferSize", [](auto& h) { a(h)->getBufferSize(); }},
        {"IHostChannel.getSampleCount", [](auto& h) { a(h)->getSampleCount(); }},
        {"IHostChannel.getWritePosition", [](auto& h) { a(h)->getWritePosition(); }},
        {"IHostChannel.getName", [](auto& h) { a(h)->getName(); }},
        {"IHostChannel.getTimestamp", [](auto& h) { a(h)->getTimestamp(0); }},
        {"IHostChannel.isAsynchronous", [](auto& h) { a(h)->isAsynchronous(); }},
        {"IHostChannel.getUnit", [](auto& h) { a(h)->getUnit(); }},
        {"IHostChannel.getColor", [](auto& h) { a(h)->getColor(); }},
        {"IHostChannel.getDisplayValue", [](auto& h) { a(h)->getDisplayValue(); }},
        {"IHostChannel.getSampleCounter", [](auto& h) { a(h)->getSampleCounter(); }},
        {"IHostChannel.getRateDivider", [](auto& h) { a(h)->getRateDivider(); }},
        {"IHostChannel.getAxes", [](auto& h) { a(h)->getAxes(); }},
        {"IHostChannel.isArray", [](auto& h) { a(h)->isArray(); }},
        {"IHostChannel.getArraySize", [](auto& h) { a(h)->getArraySize(); }},
        {"IHostChannel.getStorageKind", [](auto& h) { a(h)->getStorageKind(); }},
        {"IHostChannel.scaleValue", [](auto& h) { a(h)->scaleValue(1.5); }},
        {"IHostChannel.getProperties", [](auto& h) { a(h)->getProperties(); }},
        {"IHostChannel.getValueAtTime", readAtTime},
        {"IHostChannel.getValue", [](auto& h) { a(h)->getValue(0, 4); }},
        {"IHostChannel.getSampleRate", [](auto& h) { a(h)->getSampleRate(); }},
        {"IHostChannel.getDecimals", [](auto& h) { a(h)->getDecimals(); }},
        {"IHostProperties.getValue", [](auto& h) { a(h)->getProperties()->getValue(L"p"); }},
        {"IHostGroupInfo.getProperties",
         [](auto& h) { h.group(0).template offered<Host::IHostGroupInfo>()->getProperties(); }},
        {"IHostAxisList.getAxis", [](auto& h) { a(h)->getAxes()->getAxis(0); }},
        {"IHostAxis.getStart", [](auto& h) { a(h)->getAxes()->getAxis(0)->getStart(); }},
        {"IHostAxis.getStep", [](auto& h) { a(h)->getAxes()->getAxis(0)->getStep(); }},
    };
}

std::vector<OperationCall> drawingOperations() {
    return {
        {"IHostCanvas.LineTo", [](auto& h) { h.canvas()->LineTo(1, 2); }},
        {"IHostCanvas.MoveTo", [](auto& h) { h.canvas()->MoveTo(1, 2); }},
        {"IHostCanvas.Ellipse", [](auto& h) { h.canvas()->Ellipse(1, 2, 3, 4); }},
        {"IHostCanvas.Rectangle", [](auto& h) { h.canvas()->Rectangle(1, 2, 3, 4); }},
        {"IHostCanvas.TextOut", [](auto& h) { h.canvas()->TextOut(1, 2, L"t"); }},
        {"IHostCanvas.GetBrush", [](auto& h) { h.canvas()->GetBrush(); }},
        {"IHostCanvas.GetPen", [](auto& h) { h.canvas()->GetPen(); }},
        {"IHostCanvas.GetFont", [](auto& h) { h.canvas()->GetFont(); }},
        {"IHostCanvas.Arc", [](auto& h) { h.canvas()->Arc(1, 2, 3, 4, 5, 6, 7, 8); }},
        {"IHostCanvas.TextWidth", [](auto& h) { h.canvas()->TextWidth(L"t"); }},
        {"IHostCanvas.TextHeight", [](auto& h) { h.canvas()->TextHeight(L"t"); }},
        {"IHostCanvas.TextRect", [](auto& h) { h.canvas()->TextRect(1, 2, 3, 4, L"t", 4); }},
        {"IHostCanvas.Polygon",
         [](auto& h) {
             h.canvas()->Polygon({1, 2, 3, 4}, 2);
         }},
        {"IHostPen.SetColor", [](auto& h) { h.canvas()->GetPen()->SetColor(1); }},
        {"IHostPen.SetWidth", [](auto& h) { h.canvas()->GetPen()->SetWidth(2); }},
        {"IHostPen.SetStyle", [](auto& h) { h.canvas()->GetPen()->SetStyle(0); }},
        {"IHostBrush.SetColor", [](auto& h) { h.canvas()->GetBrush()->SetColor(1); }},
        {"IHostBrush.SetStyle", [](auto& h) { h.canvas()->GetBrush()->SetStyle(1); }},
        {"IHostFont.SetColor", [](auto& h) { h.canvas()->GetFont()->SetColor(1); }},
        {"IHostFont.GetHeight", [](auto& h) { h.canvas()->GetFont()->GetHeight(); }},
        {"IHostFont.SetHeight", [](auto& h) { h.canvas()->GetFont()->SetHeight(9); }},
        {"IHostFont.SetStyle", [](auto& h) { h.canvas()->GetFont()->SetStyle(0); }},
        {"IHostFont.SetOrientation", [](auto& h) { h.canvas()->GetFont()->SetOrientation(900); }},
    };
}

std::vector<OperationCall> panelOperations() {
    return {
        {"IHostPropertyPanel.GetPage", [](auto& h) { h.panel()->GetPage(L"p"); }},
        {"IHostPropertyPanel.AddPage", [](auto& h) { h.panel()->AddPage(L"p"); }},
        {"IHostPropertyPage.AddGroup", [](auto& h) { page(h)->AddGroup(L"g"); }},
        {"IHostPropertyPage.AddNumberEdit", numberEdit},
        {"IHostPropertyPage.FindControl", [](auto& h) { page(h)->FindControl(L"w"); }},
        {"IHostPropertyPage.AddColorEdit", colorEdit},
        {"IHostPropertyPage.AddFloatEdit", floatEdit},
        {"IHostPropertyPage.AddComboBox", comboBox},
        {"IHostPropertyPage.AddCheckBox", checkBox},
        {"IHostPropertyControl.GetName", [](auto& h) { control(h)->GetName(); }},
        {"IHostPropertyControl.SetVisible", [](auto& h) { control(h)->SetVisible(true); }},
        {"IHostPropertyControl.SetEnabled", [](auto& h) { control(h)->SetEnabled(false); }},
        {"IHostPropertyControl.SetFlag", [](auto& h) { control(h)->SetFlag(1); }},
        {"IHostCheckBox.GetChecked", [](auto& h) { checkBox(h)->GetChecked(); }},
        {"IHostCheckBox.SetChecked", [](auto& h) { checkBox(h)->SetChecked(true); }},
        {"IHostComboBox.GetIndex", [](auto& h) { comboBox(h)->GetIndex(); }},
        {"IHostComboBox.SetIndex", [](auto& h) { comboBox(h)->SetIndex(1); }},
        {"IHostComboBox.AddItem", [](auto& h) { comboBox(h)->AddItem(L"i"); }},
        {"IHostFloatEdit.GetValue", [](auto& h) { floatEdit(h)->GetValue(); }},
        {"IHostFloatEdit.SetValue", [](auto& h) { floatEdit(h)->SetValue(1.5); }},
        {"IHostFloatEdit.SetMin", [](auto& h) { floatEdit(h)->SetMin(1.0); }},
        {"IHostFloatEdit.SetMax", [](auto& h) { floatEdit(h)->SetMax(2.0); }},
        {"IHostColorEdit.GetColor", [](auto& h) { colorEdit(h)->GetColor(); }},
        {"IHostColorEdit.SetColor", [](auto& h) { colorEdit(h)->SetColor(-1); }},
        {"IHostNumberEdit.GetValue", [](auto& h) { numberEdit(h)->GetValue(); }},
        {"IHostNumberEdit.SetValue", [](auto& h) { numberEdit(h)->SetValue(3); }},
        {"IHostNumberEdit.SetMin", [](auto& h) { numberEdit(h)->SetMin(1); }},
        {"IHostNumberEdit.SetMax", [](auto& h) { numberEdit(h)->SetMax(9); }},
    };
}

std::vector<OperationCall> documentOperations() {
    return {
        {"IHostXmlFactory.CreateDocument",
         [](auto& h) { h.app()->GetXmlFactory()->CreateDocument(true); }},
        {"IHostXmlDocument.GetRootNode", [](auto& h) { h.document()->GetRootNode(); }},
        {"IHostXmlDocument.SetRootNode", [](auto& h) { h.document()->SetRootNode(*newNode(h)); }},
        {"IHostXmlDocument.CreateNode", newNode},
        {"IHostXmlDocument.WriteValue",
         [](auto& h) { h.document()->WriteValue(*h.node(), L"k", L"v", L"d"); }},
        {"IHostXmlDocument.ReadValue", readValue},
        {"IHostXmlDocument.GetMode", [](auto& h) { h.document()->GetMode(); }},
        {"IHostXmlDocument.SetMode", [](auto& h) { h.document()->SetMode(true); }},
        {"IHostXmlNode.SetValue", [](auto& h) { h.node()->SetValue(L"v"); }},
        {"IHostXmlNode.AppendChild", [](auto& h) { h.node()->AppendChild(*newNode(h)); }},
        {"IHostXmlNode.RemoveChild", [](auto& h) { h.node()->RemoveChild(*newNode(h)); }},
        {"IHostXmlNode.ClearChildren", [](auto& h) { h.node()->ClearChildren(); }},
        {"IHostXmlNode.FindChild", [](auto& h) { h.node()->FindChild(L"n"); }},
        {"IHostXmlNode.GetChild", [](auto& h) { h.node()->GetChild(0); }},
        {"IHostXmlNode.GetChildCount", [](auto& h) { h.node()->GetChildCount(); }},
        {"IHostXmlNode.Clone", [](auto& h) { h.node()->Clone(); }},
        {"IHostXmlNode.GetParent", [](auto& h) { h.node()->GetParent(); }},
        {"IHostXmlNode.AppendAttribute", [](auto& h) { h.node()->AppendAttribute(*newNode(h)); }},
        {"IHostXmlNode.RemoveAttribute", [](auto& h) { h.node()->RemoveAttribute(*newNode(h)); }},
        {"IHostXmlNode.FindAttribute", [](auto& h) { h.node()->FindAttribute(L"n"); }},
        {"IHostXmlNode.GetAttribute", [](auto& h) { h.node()->GetAttribute(0); }},
        {"IHostXmlNode.GetAttributeCount", [](auto& h) { h.node()->GetAttributeCount(); }},
        {"IHostXmlNode.ClearAttributes", [](auto& h) { h.node()->ClearAttributes(); }},
        {"IHostXmlNode.GetName", [](auto& h) { h.node()->GetName(); }},
        {"IHostXmlNode.GetValue", [](auto& h) { h.node()->GetValue(); }},
    };
}

}  // namespace

const std::vector<OperationCall>& everyOperation() {
    static const std::vector<OperationCall> All = [] {
        std::vector<OperationCall> all;
        for (const auto& part : {dataOperations(), channelOperations(), drawingOperations(),
                                 panelOperations(), documentOperations()}) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }();
    return All;
}

void describeEverything(HostDescription& description) {
    description.channels["a"].axes = {{{1.0, 0.5}}};
    description.channels["a"].values[4] = {2.5};
    description.assigned.channels = {"a"};
    description.assigned.groups = {{{"a"}, {}}};
    description.assigned.slots = {{1}};
}

}  // namespace Rotavue::HostKit
