#include "host_kit/memory/memory_collections.h"

#include "host_kit/memory/host_objects.h"

namespace Rotavue::HostKit {

using Host::Ref;

namespace {

template <class Item>
const Item* itemAt(const std::vector<Item>& items, std::int32_t index) {
    const auto position = static_cast<std::uint32_t>(index);
    return position < items.size() ? &items[position] : nullptr;
}

template <class Item>
std::int32_t countOf(const std::vector<Item>& items) {
    return static_cast<std::int32_t>(items.size());
}

Ref<Host::IHostChannel> channelAt(MemoryHost& host, const std::vector<ChannelItem>& items,
                                  std::int32_t index) {
    const ChannelItem* item = itemAt(items, index);
    return item != nullptr && *item ? host.channel(**item) : nullptr;
}

}  // namespace

std::int32_t MemoryChannels::getCount() {
    return call(operation("IHostChannelCollection.getCount"),
                [&] { return countOf(host_.description.assigned.channels); });
}

Ref<Host::IHostChannel> MemoryChannels::getItem(std::int32_t index) {
    return call(
        operation("IHostChannelCollection.getItem"),
        [&] { return channelAt(host_, host_.description.assigned.channels, index); }, index);
}

std::int32_t MemoryGroups::getCount() {
    return call(operation("IHostGroupCollection.getCount"),
                [&] { return countOf(host_.description.assigned.groups); });
}

Ref<Host::IHostObject> MemoryGroups::getItem(std::int32_t index) {
    return call(
        operation("IHostGroupCollection.getItem"),
        [&]() -> Ref<Host::IHostObject> {
            if (itemAt(host_.description.assigned.groups, index) == nullptr) return {};
            return host_.group(index);
        },
        index);
}

void MemoryChannelList::add(Host::IHostChannel& channel) {
    const auto part = [&] { items_.emplace_back(own<MemoryChannel>(channel).id()); };
    call(operation("IHostChannelList.add"), part, channel);
}

void MemoryChannelList::clear() {
    call(operation("IHostChannelList.clear"), [&] { items_.clear(); });
}

std::int32_t MemoryChannelList::getCount() {
    return call(operation("IHostChannelList.getCount"), [&] { return countOf(items_); });
}

Ref<Host::IHostChannel> MemoryChannelList::getItem(std::int32_t index) {
    return call(
        operation("IHostChannelList.getItem"), [&] { return channelAt(host_, items_, index); },
        index);
}

MemoryGroup::MemoryGroup(MemoryHost& host, std::int32_t index)
    : LastingObject(host),
      index_(index),
      properties_(std::make_unique<MemoryProperties>(host, [this] {
          const GroupDescription* group = described();
          return group != nullptr ? &group->properties : nullptr;
      })) {}

MemoryGroup::~MemoryGroup() = default;

const GroupDescription* MemoryGroup::described() const {
    return itemAt(host_.description.assigned.groups, index_);
}

std::vector<ChannelItem>* MemoryGroup::channels() const {
    auto& groups = host_.description.assigned.groups;
    const auto position = static_cast<std::uint32_t>(index_);
    return position < groups.size() ? &groups[position].channels : nullptr;
}

std::vector<ChannelItem> MemoryGroup::items() const {
    return channels() != nullptr ? *channels() : std::vector<ChannelItem>{};
}

void MemoryGroup::add(Host::IHostChannel& channel) {
    call(
        operation("IHostChannelList.add"),
        [&] {
            if (channels() != nullptr) channels()->emplace_back(own<MemoryChannel>(channel).id());
        },
        channel);
}

void MemoryGroup::clear() {
    call(operation("IHostChannelList.clear"), [&] {
        if (channels() != nullptr) channels()->clear();
    });
}

std::int32_t MemoryGroup::getCount() {
    return call(operation("IHostChannelList.getCount"),
                [&] { return channels() != nullptr ? countOf(*channels()) : 0; });
}

Ref<Host::IHostChannel> MemoryGroup::getItem(std::int32_t index) {
    return call(
        operation("IHostChannelList.getItem"),
        [&]() -> Ref<Host::IHostChannel> {
            if (channels() == nullptr) return {};
            return channelAt(host_, *channels(), index);
        },
        index);
}

Ref<Host::IHostProperties> MemoryGroup::getProperties() {
    return call(operation("IHostGroupInfo.getProperties"),
                [&] { return Ref<Host::IHostProperties>::share(properties_.get()); });
}

}  // namespace Rotavue::HostKit
