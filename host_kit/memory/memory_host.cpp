#include "host_kit/memory/memory_host.h"

#include "host_kit/memory/host_objects.h"

#include <utility>

namespace Rotavue::HostKit {

using Host::Ref;

MemoryHost::MemoryHost() : objects_(std::make_unique<HostObjects>(*this)) {}

MemoryHost::~MemoryHost() = default;

Ref<Host::IHostApp> MemoryHost::app() {
    return Ref<Host::IHostApp>::share(&objects_->app);
}

Ref<Host::IHostVisualControl> MemoryHost::control() {
    return Ref<Host::IHostVisualControl>::share(&objects_->control);
}

Ref<Host::IHostData> MemoryHost::data() {
    return Ref<Host::IHostData>::share(&objects_->data);
}

Ref<Host::IHostCanvas> MemoryHost::canvas() {
    return Ref<Host::IHostCanvas>::share(&objects_->canvas);
}

Ref<Host::IHostXmlDocument> MemoryHost::document() {
    return Ref<Host::IHostXmlDocument>::share(objects_->document.get());
}

Ref<Host::IHostXmlNode> MemoryHost::node() {
    return Ref<Host::IHostXmlNode>::share(objects_->node.get());
}

Ref<Host::IHostPropertyPanel> MemoryHost::panel() {
    return Ref<Host::IHostPropertyPanel>::share(&objects_->panel);
}

Ref<Host::IHostChannel> MemoryHost::channel(const std::string& id) {
    return Ref<Host::IHostChannel>::share(&objects_->channel(id));
}

Ref<Host::IHostObject> MemoryHost::group(std::int32_t index) {
    Host::IHostChannelList* group = &objects_->group(index);
    return Ref<Host::IHostObject>::share(group);
}

Ref<Host::IHostObject> MemoryHost::widget(const std::wstring& name) {
    AnyWidget* widget = objects_->panel.find(name);
    return widget != nullptr ? widget->object() : objects_->bareWidget(name).object();
}

bool MemoryHost::setWidget(const std::wstring& name, const WidgetValue& value) {
    AnyWidget* widget = objects_->panel.find(name);
    if (widget != nullptr) widget->enter(value);
    return widget != nullptr;
}

void MemoryHost::record(CallGroups groups) {
    gate.watch(&recorder_, groups);
}

std::vector<std::string> MemoryHost::takeCalls() {
    return std::exchange(recorder_.lines, {});
}

void MemoryHost::drawAlsoOn(Ref<Host::IHostCanvas> canvas) {
    objects_->canvas.drawAlsoOn(std::move(canvas));
}

void MemoryHost::fail(Operation operation, std::int64_t n, std::uint32_t status) {
    gate.fail({operation, n, status});
}

}  // namespace Rotavue::HostKit
