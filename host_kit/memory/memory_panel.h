#pragma once

#include "host_kit/memory/memory_object.h"
#include "host_kit/memory/memory_widgets.h"
#include "plugin/framework/host/panel/host_property_panel.h"

#include <map>

namespace Rotavue::HostKit {

/// One page. Adding a widget under a name that is taken puts a fresh one in its place.
class MemoryPage final : public PassingObject<Host::IHostPropertyPage> {
public:
    MemoryPage(MemoryHost& host, std::wstring name);

    std::string name() const override;
    std::optional<CallValue> logName() const override { return toCallValue(name_); }

    /// The widget of that name; null where the page has none.
    AnyWidget* find(const std::wstring& widgetName) const;

    void AddGroup(const std::wstring& caption) override;
    Host::Ref<Host::IHostNumberEdit> AddNumberEdit(const std::wstring& name,
                                                   const std::wstring& caption) override;
    Host::Ref<Host::IHostObject> FindControl(const std::wstring& name) override;
    Host::Ref<Host::IHostColorEdit> AddColorEdit(const std::wstring& name,
                                                 const std::wstring& caption) override;
    Host::Ref<Host::IHostFloatEdit> AddFloatEdit(const std::wstring& name,
                                                 const std::wstring& caption) override;
    Host::Ref<Host::IHostComboBox> AddComboBox(const std::wstring& name,
                                               const std::wstring& caption) override;
    Host::Ref<Host::IHostCheckBox> AddCheckBox(const std::wstring& name,
                                               const std::wstring& caption) override;

private:
    template <class Interface, class Widget>
    Host::Ref<Interface> add(Operation operation, const std::wstring& name,
                             const std::wstring& caption);

    std::wstring name_;
    std::map<std::wstring, std::shared_ptr<AnyWidget>> widgets_;
};

/// The panel. Adding a page under a name that is taken puts a fresh one in its place.
class MemoryPanel final : public LastingObject<Host::IHostPropertyPanel> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "panel"; }

    /// The widget of that name on the first page, by name, that has one; null where none has.
    AnyWidget* find(const std::wstring& widgetName) const;

    Host::Ref<Host::IHostPropertyPage> GetPage(const std::wstring& name) override;
    Host::Ref<Host::IHostPropertyPage> AddPage(const std::wstring& name) override;

private:
    std::map<std::wstring, std::shared_ptr<MemoryPage>> pages_;
};

}  // namespace Rotavue::HostKit
