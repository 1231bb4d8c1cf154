#pragma once

#include "plugin/module/windows/interfaces/data_operations.h"
#include "plugin/module/windows/proxies/proxy_object.h"

namespace Meridax::Host::Binary {

template <>
class Proxy<IHostApp> final : public ProxyObject<IHostApp> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostData> getData() override { return call<&IHostApp::getData>(); }
    void showMessage(const std::wstring& text) override {
        return call<&IHostApp::showMessage>(text);
    }
    bool isAcquiring() override { return call<&IHostApp::isAcquiring>(); }
    HostVersion getVersion() override { return call<&IHostApp::getVersion>(); }
    Ref<IHostChannelList> createChannelList() override {
        return call<&IHostApp::createChannelList>();
    }
    Ref<IHostXmlFactory> GetXmlFactory() override { return call<&IHostApp::GetXmlFactory>(); }
};

template <>
class Proxy<IHostData> final : public ProxyObject<IHostData> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t getBlockSize() override { return call<&IHostData::getBlockSize>(); }
    DataPosition getCurrentPosition() override { return call<&IHostData::getCurrentPosition>(); }
    std::int32_t getAcquiredSampleCount() override {
        return call<&IHostData::getAcquiredSampleCount>();
    }
    DataPosition getFirstPosition() override { return call<&IHostData::getFirstPosition>(); }
    DataPosition getLastPosition() override { return call<&IHostData::getLastPosition>(); }
    bool isWholeDataset() override { return call<&IHostData::isWholeDataset>(); }
    double getSampleRate() override { return call<&IHostData::getSampleRate>(); }
};

template <>
class Proxy<IHostVisualControl> final : public ProxyObject<IHostVisualControl> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostChannelCollection> getChannels() override {
        return call<&IHostVisualControl::getChannels>();
    }
    void invalidate() override { return call<&IHostVisualControl::invalidate>(); }
    Ref<IHostGroupCollection> getGroups() override {
        return call<&IHostVisualControl::getGroups>();
    }
    void requestData(DataPosition from, DataPosition to, std::int32_t mode, bool flag,
                     IHostChannelList& channels) override {
        return call<&IHostVisualControl::requestData>(from, to, mode, flag, channels);
    }
    void refreshSetup() override { return call<&IHostVisualControl::refreshSetup>(); }
    bool editText(std::int32_t x, std::int32_t y, std::wstring& text) override {
        return call<&IHostVisualControl::editText>(x, y, text);
    }
    Ref<IHostSlotList> getSlots() override { return call<&IHostVisualControl::getSlots>(); }
};

template <>
class Proxy<IHostSlot> final : public ProxyObject<IHostSlot> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t getKind() override { return call<&IHostSlot::getKind>(); }
};

template <>
class Proxy<IHostSlotList> final : public ProxyObject<IHostSlotList> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostSlot> getSlot(std::int32_t index) override {
        return call<&IHostSlotList::getSlot>(index);
    }
};

template <>
class Proxy<IHostChannelCollection> final : public ProxyObject<IHostChannelCollection> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t getCount() override { return call<&IHostChannelCollection::getCount>(); }
    Ref<IHostChannel> getItem(std::int32_t index) override {
        return call<&IHostChannelCollection::getItem>(index);
    }
};

template <>
class Proxy<IHostGroupCollection> final : public ProxyObject<IHostGroupCollection> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t getCount() override { return call<&IHostGroupCollection::getCount>(); }
    Ref<IHostObject> getItem(std::int32_t index) override {
        return call<&IHostGroupCollection::getItem>(index);
    }
};

template <>
class Proxy<IHostChannelList> final : public ProxyObject<IHostChannelList> {
public:
    using ProxyObject::ProxyObject;

    void add(IHostChannel& channel) override { return call<&IHostChannelList::add>(channel); }
    void clear() override { return call<&IHostChannelList::clear>(); }
    std::int32_t getCount() override { return call<&IHostChannelList::getCount>(); }
    Ref<IHostChannel> getItem(std::int32_t index) override {
        return call<&IHostChannelList::getItem>(index);
    }
};

template <>
class Proxy<IHostChannel> final : public ProxyObject<IHostChannel> {
public:
    using ProxyObject::ProxyObject;

    std::int32_t getBufferSize() override { return call<&IHostChannel::getBufferSize>(); }
    std::int32_t getSampleCount() override { return call<&IHostChannel::getSampleCount>(); }
    std::int32_t getWritePosition() override { return call<&IHostChannel::getWritePosition>(); }
    std::wstring getName() override { return call<&IHostChannel::getName>(); }
    double getTimestamp(std::int32_t index) override {
        return call<&IHostChannel::getTimestamp>(index);
    }
    bool isAsynchronous() override { return call<&IHostChannel::isAsynchronous>(); }
    std::wstring getUnit() override { return call<&IHostChannel::getUnit>(); }
    std::uint32_t getColor() override { return call<&IHostChannel::getColor>(); }
    double getDisplayValue() override { return call<&IHostChannel::getDisplayValue>(); }
    std::int32_t getSampleCounter() override { return call<&IHostChannel::getSampleCounter>(); }
    std::int32_t getRateDivider() override { return call<&IHostChannel::getRateDivider>(); }
    Ref<IHostAxisList> getAxes() override { return call<&IHostChannel::getAxes>(); }
    bool isArray() override { return call<&IHostChannel::isArray>(); }
    std::int32_t getArraySize() override { return call<&IHostChannel::getArraySize>(); }
    std::int32_t getStorageKind() override { return call<&IHostChannel::getStorageKind>(); }
    double scaleValue(double raw) override { return call<&IHostChannel::scaleValue>(raw); }
    Ref<IHostProperties> getProperties() override { return call<&IHostChannel::getProperties>(); }
    double getValueAtTime(double seconds, std::int32_t& cursor, std::int16_t mode,
                          std::int32_t element, std::int32_t component) override {
        return call<&IHostChannel::getValueAtTime>(seconds, cursor, mode, element, component);
    }
    double getValue(std::int32_t linearIndex, std::int32_t component) override {
        return call<&IHostChannel::getValue>(linearIndex, component);
    }
    double getSampleRate() override { return call<&IHostChannel::getSampleRate>(); }
    std::int32_t getDecimals() override { return call<&IHostChannel::getDecimals>(); }
};

template <>
class Proxy<IHostProperties> final : public ProxyObject<IHostProperties> {
public:
    using ProxyObject::ProxyObject;

    std::wstring getValue(const std::wstring& name) override {
        return call<&IHostProperties::getValue>(name);
    }
};

template <>
class Proxy<IHostGroupInfo> final : public ProxyObject<IHostGroupInfo> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostProperties> getProperties() override { return call<&IHostGroupInfo::getProperties>(); }
};

template <>
class Proxy<IHostAxis> final : public ProxyObject<IHostAxis> {
public:
    using ProxyObject::ProxyObject;

    double getStart() override { return call<&IHostAxis::getStart>(); }
    double getStep() override { return call<&IHostAxis::getStep>(); }
};

template <>
class Proxy<IHostAxisList> final : public ProxyObject<IHostAxisList> {
public:
    using ProxyObject::ProxyObject;

    Ref<IHostAxis> getAxis(std::int32_t index) override {
        return call<&IHostAxisList::getAxis>(index);
    }
};

}  // namespace Meridax::Host::Binary
