#include "tests/plugin/framework/doubles/recording_control.h"

#include "plugin/framework/unicode.h"
#include "plugin/setup_document/node.h"

#include <sstream>

namespace Meridax::VisualControls::Api {

namespace {

/// The flags as digits, flag 0 first.
std::string digits(ShiftState shift) {
    std::string text;
    for (const bool flag : {shift.flag0, shift.flag1, shift.flag2, shift.flag3, shift.flag4,
                            shift.flag5, shift.flag6})
        text += flag ? '1' : '0';
    return text;
}

template <class... Parts>
std::string line(const Parts&... parts) {
    std::ostringstream text;
    const char* gap = "";
    ((text << gap << parts, gap = " "), ...);
    return text.str();
}

}  // namespace

void RecordingControl::note(const std::string& call) {
    record_.calls.push_back(call);
    if (record_.during) record_.during();
}

void RecordingControl::note(const std::string& call, Host::IHostObject* object) {
    record_.lastObject = Host::Ref<Host::IHostObject>::share(object);
    note(call + (object == nullptr ? " null" : " object"));
}

void RecordingControl::onClose() {
    note("onClose");
}

void RecordingControl::onAttached() {
    note("onAttached");
}

void RecordingControl::requestData(Host::DataPosition& first, Host::DataPosition& second) {
    note("requestData");
    first = record_.first;
    second = record_.second;
}

void RecordingControl::draw(const DrawContext& context) {
    record_.lastContext = context;
    note(line("draw", context.x, context.y, context.width, context.height));
}

void RecordingControl::onMouseUp(std::uint8_t button, ShiftState shift, std::int32_t x,
                                 std::int32_t y) {
    note(line("onMouseUp", int{button}, digits(shift), x, y));
}

void RecordingControl::onMouseDown(std::uint8_t button, ShiftState shift, std::int32_t x,
                                   std::int32_t y) {
    note(line("onMouseDown", int{button}, digits(shift), x, y));
}

void RecordingControl::onMouseEnter() {
    note("onMouseEnter");
}

void RecordingControl::onMouseLeave() {
    note("onMouseLeave");
}

void RecordingControl::onMouseMove(ShiftState shift, std::int32_t x, std::int32_t y) {
    note(line("onMouseMove", digits(shift), x, y));
}

void RecordingControl::onMouseWheel(ShiftState shift, std::int32_t x, std::int32_t y,
                                    bool direction) {
    note(line("onMouseWheel", digits(shift), x, y, direction ? "true" : "false"));
}

bool RecordingControl::acceptsChannel(Host::Ref<Host::IHostChannel> channel) {
    note("acceptsChannel", channel.get());
    return record_.accepts;
}

bool RecordingControl::acceptsGroup(Host::Ref<Host::IHostObject> group) {
    note("acceptsGroup", group.get());
    return record_.accepts;
}

void RecordingControl::onGroupChanged(Host::Ref<Host::IHostObject> group) {
    note("onGroupChanged", group.get());
}

void RecordingControl::persistSetup(Utils::Serialization::Node& node) {
    note(node.isWriting() ? "persistSetup writing" : "persistSetup reading");
}

bool RecordingControl::canCopyToClipboard() {
    note("canCopyToClipboard");
    return record_.canCopy;
}

std::wstring RecordingControl::clipboardText() {
    note("clipboardText");
    return record_.text;
}

void RecordingControl::buildProperties(Host::Ref<Host::IHostPropertyPanel> panel) {
    note("buildProperties", panel.get());
}

void RecordingControl::fillProperties(Host::Ref<Host::IHostPropertyPanel> panel) {
    note("fillProperties", panel.get());
}

void RecordingControl::readProperty(std::wstring text,
                                    Host::Ref<Host::IHostPropertyControl> widget) {
    note(line("readProperty", utf8FromWide(text)), widget.get());
}

void RecordingControl::onPropertyEvent(std::wstring text, Host::Ref<Host::IHostObject> object,
                                       std::int32_t number) {
    note(line("onPropertyEvent", utf8FromWide(text), number), object.get());
}

void RecordingControl::onChannelsChanged(std::int32_t slotIndex) {
    note(line("onChannelsChanged", slotIndex));
}

}  // namespace Meridax::VisualControls::Api
