#include "host_kit/memory/memory_panel.h"

#include "host_kit/memory/utf8.h"

#include <utility>

namespace Rotavue::HostKit {

using Host::Ref;

MemoryPage::MemoryPage(MemoryHost& host, std::wstring name)
    : PassingObject(host), name_(std::move(name)) {}

std::string MemoryPage::name() const {
    return "page:" + toUtf8(name_);
}

AnyWidget* MemoryPage::find(const std::wstring& widgetName) const {
    const auto found = widgets_.find(widgetName);
    return found != widgets_.end() ? found->second.get() : nullptr;
}

template <class Interface, class Widget>
Ref<Interface> MemoryPage::add(Operation operation, const std::wstring& name,
                               const std::wstring& caption) {
    return call(
        operation,
        [&] {
            const auto widget = std::make_shared<Widget>(host_, name);
            widgets_[name] = widget;
            return Ref<Interface>::share(widget.get());
        },
        name, caption);
}

void MemoryPage::AddGroup(const std::wstring& caption) {
    call(
        operation("IHostPropertyPage.AddGroup"), [] {}, caption);
}

Ref<Host::IHostNumberEdit> MemoryPage::AddNumberEdit(const std::wstring& name,
                                                     const std::wstring& caption) {
    return add<Host::IHostNumberEdit, MemoryNumberEdit>(
        operation("IHostPropertyPage.AddNumberEdit"), name, caption);
}

Ref<Host::IHostObject> MemoryPage::FindControl(const std::wstring& name) {
    return call(
        operation("IHostPropertyPage.FindControl"),
        [&]() -> Ref<Host::IHostObject> {
            AnyWidget* widget = find(name);
            if (widget == nullptr || host_.description.panel.hidden.contains(name)) return {};
            return widget->object();
        },
        name);
}

Ref<Host::IHostColorEdit> MemoryPage::AddColorEdit(const std::wstring& name,
                                                   const std::wstring& caption) {
    return add<Host::IHostColorEdit, MemoryColorEdit>(operation("IHostPropertyPage.AddColorEdit"),
                                                      name, caption);
}

Ref<Host::IHostFloatEdit> MemoryPage::AddFloatEdit(const std::wstring& name,
                                                   const std::wstring& caption) {
    return add<Host::IHostFloatEdit, MemoryFloatEdit>(operation("IHostPropertyPage.AddFloatEdit"),
                                                      name, caption);
}

Ref<Host::IHostComboBox> MemoryPage::AddComboBox(const std::wstring& name,
                                                 const std::wstring& caption) {
    return add<Host::IHostComboBox, MemoryComboBox>(operation("IHostPropertyPage.AddComboBox"),
                                                    name, caption);
}

Ref<Host::IHostCheckBox> MemoryPage::AddCheckBox(const std::wstring& name,
                                                 const std::wstring& caption) {
    return add<Host::IHostCheckBox, MemoryCheckBox>(operation("IHostPropertyPage.AddCheckBox"),
                                                    name, caption);
}

AnyWidget* MemoryPanel::find(const std::wstring& widgetName) const {
    for (const auto& [name, page] : pages_) {
        if (AnyWidget* widget = page->find(widgetName)) return widget;
    }
    return nullptr;
}

Ref<Host::IHostPropertyPage> MemoryPanel::GetPage(const std::wstring& name) {
    return call(
        operation("IHostPropertyPanel.GetPage"),
        [&]() -> Ref<Host::IHostPropertyPage> {
            const auto found = pages_.find(name);
            if (found == pages_.end()) return {};
            return Ref<Host::IHostPropertyPage>::share(found->second.get());
        },
        name);
}

Ref<Host::IHostPropertyPage> MemoryPanel::AddPage(const std::wstring& name) {
    return call(
        operation("IHostPropertyPanel.AddPage"),
        [&] {
            const auto page = std::make_shared<MemoryPage>(host_, name);
            pages_[name] = page;
            return Ref<Host::IHostPropertyPage>::share(page.get());
        },
        name);
}

}  // namespace Rotavue::HostKit
