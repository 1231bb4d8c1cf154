#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/data/host_slots.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/document/host_xml.h"

#include <functional>
#include <string>
#include <vector>

namespace Meridax::Host {

/// A host object that writes down each retain and release; its operations answer nothing.
template <class Interface>
class Counted : public Interface {
public:
    Counted(std::string name, std::vector<std::string>& log) : name_(std::move(name)), log_(log) {}

    void retain() noexcept final {
        ++count;
        log_.push_back("retain " + name_);
    }
    void release() noexcept final {
        --count;
        log_.push_back("release " + name_);
        if (onRelease) onRelease();
    }
    void* offer(const Guid& interfaceId) final {
        if (interfaceId != Interface::Identifier) return nullptr;
        retain();
        return static_cast<Interface*>(this);
    }

    int count = 0;
    std::function<void()> onRelease;

protected:
    ~Counted() = default;

private:
    std::string name_;
    std::vector<std::string>& log_;
};

class CountedApp final : public Counted<IHostApp> {
public:
    using Counted::Counted;

    Ref<IHostData> getData() override { return nullptr; }
    void showMessage(const std::wstring& /*text*/) override {}
    bool isAcquiring() override { return false; }
    HostVersion getVersion() override { return {4, 0, 0}; }
    Ref<IHostChannelList> createChannelList() override { return nullptr; }
    Ref<IHostXmlFactory> GetXmlFactory() override { return nullptr; }
};

class CountedControl final : public Counted<IHostVisualControl> {
public:
    using Counted::Counted;

    Ref<IHostChannelCollection> getChannels() override { return nullptr; }
    void invalidate() override {}
    Ref<IHostGroupCollection> getGroups() override { return nullptr; }
    void requestData(DataPosition /*from*/, DataPosition /*to*/, std::int32_t /*mode*/,
                     bool /*flag*/, IHostChannelList& /*channels*/) override {}
    void refreshSetup() override {}
    bool editText(std::int32_t /*x*/, std::int32_t /*y*/, std::wstring& /*text*/) override {
        return false;
    }
    Ref<IHostSlotList> getSlots() override { return nullptr; }
};

}  // namespace Meridax::Host
