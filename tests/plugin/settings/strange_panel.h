#pragma once

#include "plugin/framework/host/panel/host_property_panel.h"

#include <string>

namespace Meridax::VisualControls::Rotavue {

/// A panel and its only page in one. Under every name it finds the same object, or none, and what
/// is added to it is null. It takes no memory.
class StrangePanel : public Host::IHostPropertyPanel, public Host::IHostPropertyPage {
public:
    explicit StrangePanel(Host::IHostObject* found) : found_(found) {}
    StrangePanel(const StrangePanel&) = delete;
    StrangePanel& operator=(const StrangePanel&) = delete;
    virtual ~StrangePanel() = default;

    void retain() noexcept override {}
    void release() noexcept override {}
    void* offer(const Host::Guid&) override { return nullptr; }

    Host::Ref<Host::IHostPropertyPage> GetPage(const std::wstring&) override { return page(); }
    Host::Ref<Host::IHostPropertyPage> AddPage(const std::wstring&) override { return page(); }
    void AddGroup(const std::wstring&) override {}
    Host::Ref<Host::IHostObject> FindControl(const std::wstring&) override {
        return Host::Ref<Host::IHostObject>::share(found_);
    }
    Host::Ref<Host::IHostNumberEdit> AddNumberEdit(const std::wstring&,
                                                   const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostColorEdit> AddColorEdit(const std::wstring&,
                                                 const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostFloatEdit> AddFloatEdit(const std::wstring&,
                                                 const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostComboBox> AddComboBox(const std::wstring&, const std::wstring&) override {
        return nullptr;
    }
    Host::Ref<Host::IHostCheckBox> AddCheckBox(const std::wstring&, const std::wstring&) override {
        return nullptr;
    }

private:
    Host::Ref<Host::IHostPropertyPage> page() {
        return Host::Ref<Host::IHostPropertyPage>::share(this);
    }

    Host::IHostObject* found_;
};

}  // namespace Meridax::VisualControls::Rotavue
