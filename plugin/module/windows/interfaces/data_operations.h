#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_axes.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/data/host_slots.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/module/windows/interfaces/operation.h"

namespace Meridax::Host::Binary {

template <>
struct Table<IHostApp> {
    static constexpr std::string_view Text = "IHostApp";
    using Operations =
        OperationList<Operation<1, "getData", &IHostApp::getData>,
                      Operation<78, "showMessage", &IHostApp::showMessage>,
                      Operation<91, "isAcquiring", &IHostApp::isAcquiring>,
                      Operation<155, "getVersion", &IHostApp::getVersion>,
                      Operation<173, "createChannelList", &IHostApp::createChannelList>,
                      Operation<176, "GetXmlFactory", &IHostApp::GetXmlFactory>>;
};

template <>
struct Table<IHostData> {
    static constexpr std::string_view Text = "IHostData";
    using Operations =
        OperationList<Operation<4, "getBlockSize", &IHostData::getBlockSize>,
                      Operation<11, "getCurrentPosition", &IHostData::getCurrentPosition>,
                      Operation<33, "getAcquiredSampleCount", &IHostData::getAcquiredSampleCount>,
                      Operation<34, "getFirstPosition", &IHostData::getFirstPosition>,
                      Operation<35, "getLastPosition", &IHostData::getLastPosition>,
                      Operation<36, "isWholeDataset", &IHostData::isWholeDataset>,
                      Operation<38, "getSampleRate", &IHostData::getSampleRate>>;
};

template <>
struct Table<IHostVisualControl> {
    static constexpr std::string_view Text = "IHostVisualControl";
    using Operations = OperationList<
        Operation<1, "getChannels", &IHostVisualControl::getChannels>,
        Operation<2, "invalidate", &IHostVisualControl::invalidate>,
        Operation<6, "getGroups", &IHostVisualControl::getGroups>,
        Operation<7, "requestData", &IHostVisualControl::requestData, Truth::AsMinusOne>,
        Operation<8, "refreshSetup", &IHostVisualControl::refreshSetup>,
        Operation<9, "editText", &IHostVisualControl::editText>,
        Operation<10, "getSlots", &IHostVisualControl::getSlots>>;
};

template <>
struct Table<IHostSlotList> {
    static constexpr std::string_view Text = "IHostSlotList";
    using Operations = OperationList<Operation<15, "getSlot", &IHostSlotList::getSlot>>;
};

template <>
struct Table<IHostSlot> {
    static constexpr std::string_view Text = "IHostSlot";
    using Operations = OperationList<Operation<22, "getKind", &IHostSlot::getKind>>;
};

template <>
struct Table<IHostChannelCollection> {
    static constexpr std::string_view Text = "IHostChannelCollection";
    using Operations = OperationList<Operation<1, "getCount", &IHostChannelCollection::getCount>,
                                     Operation<2, "getItem", &IHostChannelCollection::getItem>>;
};

template <>
struct Table<IHostGroupCollection> {
    static constexpr std::string_view Text = "IHostGroupCollection";
    using Operations = OperationList<Operation<1, "getCount", &IHostGroupCollection::getCount>,
                                     Operation<3, "getItem", &IHostGroupCollection::getItem>>;
};

template <>
struct Table<IHostChannelList> {
    static constexpr std::string_view Text = "IHostChannelList";
    using Operations = OperationList<Operation<1, "add", &IHostChannelList::add>,
                                     Operation<2, "clear", &IHostChannelList::clear>,
                                     Operation<4, "getCount", &IHostChannelList::getCount>,
                                     Operation<5, "getItem", &IHostChannelList::getItem>>;
};

template <>
struct Table<IHostChannel> {
    static constexpr std::string_view Text = "IHostChannel";
    using Operations =
        OperationList<Operation<4, "getBufferSize", &IHostChannel::getBufferSize>,
                      Operation<5, "getSampleCount", &IHostChannel::getSampleCount>,
                      Operation<6, "getWritePosition", &IHostChannel::getWritePosition>,
                      Operation<13, "getName", &IHostChannel::getName>,
                      Operation<15, "getTimestamp", &IHostChannel::getTimestamp>,
                      Operation<25, "isAsynchronous", &IHostChannel::isAsynchronous>,
                      Operation<36, "getUnit", &IHostChannel::getUnit>,
                      Operation<45, "getColor", &IHostChannel::getColor>,
                      Operation<61, "getDisplayValue", &IHostChannel::getDisplayValue>,
                      Operation<71, "getSampleCounter", &IHostChannel::getSampleCounter>,
                      Operation<77, "getRateDivider", &IHostChannel::getRateDivider>,
                      Operation<118, "getAxes", &IHostChannel::getAxes>,
                      Operation<119, "isArray", &IHostChannel::isArray>,
                      Operation<121, "getArraySize", &IHostChannel::getArraySize>,
                      Operation<124, "getStorageKind", &IHostChannel::getStorageKind>,
                      Operation<150, "scaleValue", &IHostChannel::scaleValue>,
                      Operation<182, "getProperties", &IHostChannel::getProperties>,
                      Operation<191, "getValueAtTime", &IHostChannel::getValueAtTime>,
                      Operation<192, "getValue", &IHostChannel::getValue>,
                      Operation<205, "getSampleRate", &IHostChannel::getSampleRate>,
                      Operation<208, "getDecimals", &IHostChannel::getDecimals>>;
};

template <>
struct Table<IHostProperties> {
    static constexpr std::string_view Text = "IHostProperties";
    using Operations = OperationList<Operation<3, "getValue", &IHostProperties::getValue>>;
};

template <>
struct Table<IHostGroupInfo> {
    static constexpr std::string_view Text = "IHostGroupInfo";
    using Operations = OperationList<Operation<6, "getProperties", &IHostGroupInfo::getProperties>>;
};

template <>
struct Table<IHostAxisList> {
    static constexpr std::string_view Text = "IHostAxisList";
    using Operations = OperationList<Operation<1, "getAxis", &IHostAxisList::getAxis>>;
};

template <>
struct Table<IHostAxis> {
    static constexpr std::string_view Text = "IHostAxis";
    using Operations = OperationList<Operation<3, "getStart", &IHostAxis::getStart>,
                                     Operation<5, "getStep", &IHostAxis::getStep>>;
};

}  // namespace Meridax::Host::Binary
