#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_properties.h"

namespace Rotavue::HostKit {

/// The plain channels of the assignment.
class MemoryChannels final : public LastingObject<Host::IHostChannelCollection> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "channels"; }

    std::int32_t getCount() override;
    Host::Ref<Host::IHostChannel> getItem(std::int32_t index) override;
};

/// The groups of the assignment.
class MemoryGroups final : public LastingObject<Host::IHostGroupCollection> {
public:
    using LastingObject::LastingObject;

    std::string name() const override { return "groups"; }

    std::int32_t getCount() override;
    Host::Ref<Host::IHostObject> getItem(std::int32_t index) override;
};

/// Something with a list of channels.
class ChannelItems {
public:
    virtual std::vector<ChannelItem> items() const = 0;

protected:
    ~ChannelItems() = default;
};

/// A list that the plug-in has made. It takes channels of its own host only and refuses others with
/// 0x80070057.
class MemoryChannelList final : public PassingObject<Host::IHostChannelList>, public ChannelItems {
public:
    using PassingObject::PassingObject;

    std::string name() const override { return "list"; }
    std::vector<ChannelItem> items() const override { return items_; }

    void add(Host::IHostChannel& channel) override;
    void clear() override;
    std::int32_t getCount() override;
    Host::Ref<Host::IHostChannel> getItem(std::int32_t index) override;

private:
    std::vector<ChannelItem> items_;
};

/// An assigned group. Adding to it and clearing it changes the description.
class MemoryGroup final : public LastingObject<Host::IHostChannelList, Host::IHostGroupInfo>,
                          public ChannelItems {
public:
    MemoryGroup(MemoryHost& host, std::int32_t index);
    ~MemoryGroup() override;

    std::string name() const override { return "group:" + std::to_string(index_); }
    std::optional<CallValue> logName() const override { return toCallValue(index_); }
    std::vector<ChannelItem> items() const override;
    const GroupDescription* described() const;

    void add(Host::IHostChannel& channel) override;
    void clear() override;
    std::int32_t getCount() override;
    Host::Ref<Host::IHostChannel> getItem(std::int32_t index) override;
    Host::Ref<Host::IHostProperties> getProperties() override;

private:
    std::vector<ChannelItem>* channels() const;

    std::int32_t index_;
    std::unique_ptr<class MemoryProperties> properties_;
};

}  // namespace Rotavue::HostKit
