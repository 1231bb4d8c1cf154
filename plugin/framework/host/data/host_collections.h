#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::Host {

class IHostChannel;

/// [host implements] The plain channels assigned to a control. It comes from
/// `IHostVisualControl::getChannels`.
class IHostChannelCollection : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{788183A5-1FC0-48E8-93EC-A6EE075A42F9}");

    /// The number of channels. [place 1]
    virtual std::int32_t getCount() = 0;

    /// The channel of that index, counted from 0. [place 2 | may be null]
    virtual Ref<IHostChannel> getItem(std::int32_t index) = 0;

protected:
    ~IHostChannelCollection() = default;
};

/// [host implements] The channel groups assigned to a control. It comes from
/// `IHostVisualControl::getGroups`.
class IHostGroupCollection : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{185EB8A2-805F-4B63-A1FC-BBEE49A69337}");

    /// The number of groups. [place 1]
    virtual std::int32_t getCount() = 0;

    /// The group of that index, counted from 0: an object that offers `IHostChannelList`.
    /// [place 3 | may be null]
    virtual Ref<IHostObject> getItem(std::int32_t index) = 0;

protected:
    ~IHostGroupCollection() = default;
};

/// [host implements] A list of channels: one channel group, or the list that goes with a data
/// request. It comes from `IHostApp::createChannelList`, or is asked of a group.
class IHostChannelList : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{9D693130-279E-443A-B4CA-6C2ADA913724}");

    /// Appends a channel; the list keeps a reference of its own. [place 1]
    virtual void add(IHostChannel& channel) = 0;

    /// Empties the list. [place 2]
    virtual void clear() = 0;

    /// The number of channels. [place 4]
    virtual std::int32_t getCount() = 0;

    /// The channel of that index. In a group, item 0 is the orbit channel and item 1 the tacho
    /// channel. [place 5 | may be null]
    virtual Ref<IHostChannel> getItem(std::int32_t index) = 0;

protected:
    ~IHostChannelList() = default;
};

}  // namespace Meridax::Host
