#include "workbench/analysis/raw_channels.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "workbench/analysis/bearing_properties.h"
#include "workbench/analysis/channel_text.h"
#include "workbench/recording/gaps.h"

namespace Rotavue::Workbench {
namespace {

using HostKit::ChannelDescription;
using HostKit::HostDescription;
using SharedList = HostKit::ComponentValues::SharedList;

constexpr std::int32_t PlainComponent = 0;
constexpr std::int32_t XComponent = 4;
constexpr std::int32_t YComponent = 5;
constexpr std::int32_t GroupSlot = 1;
constexpr const wchar_t* KindProperty = L"OrbitType";
constexpr const wchar_t* RawKind = L"Raw";

ChannelDescription channelOf(const Recording& recording) {
    ChannelDescription channel;
    channel.sampleRate = recording.sampleRate;
    channel.sampleCount = static_cast<std::int32_t>(recording.sampleCount());
    channel.bufferSize = channel.sampleCount;
    return channel;
}

/// Samples of a record, which lives as long as they are held.
class SharedSamples final : public HostKit::ValueList {
public:
    explicit SharedSamples(std::shared_ptr<const Samples> samples) : samples_(std::move(samples)) {}

    std::size_t size() const override { return samples_->size(); }
    double at(std::size_t place) const override { return (*samples_)[place]; }

private:
    std::shared_ptr<const Samples> samples_;
};

template <class Record>
SharedList listOf(const std::shared_ptr<const Record>& record, Samples Record::*samples) {
    return std::make_shared<SharedSamples>(
        std::shared_ptr<const Samples>(record, &(record.get()->*samples)));
}

ChannelDescription tachoChannel(const std::shared_ptr<const Recording>& recording) {
    ChannelDescription channel = channelOf(*recording);
    channel.name = L"Tacho";
    channel.unit = L"deg";
    channel.values.share(PlainComponent, listOf(recording, &Recording::angle));
    return channel;
}

struct HeldPairs {
    Samples x;
    Samples y;
};

std::shared_ptr<const HeldPairs> heldPairs(const Recording& recording) {
    HeldPairs pairs{recording.x, recording.y};
    holdGaps(pairs.x.edit(), pairs.y.edit());
    return std::make_shared<const HeldPairs>(std::move(pairs));
}

template <class Record>
void offerPairs(ChannelDescription& channel, const std::shared_ptr<const Record>& pairs) {
    channel.values.share(XComponent, listOf(pairs, &Record::x));
    channel.values.share(YComponent, listOf(pairs, &Record::y));
}

ChannelDescription orbitChannel(const std::shared_ptr<const Recording>& recording,
                                const RawOrbitStyle& style) {
    ChannelDescription channel = channelOf(*recording);
    channel.name = channelText(style.name);
    channel.unit = channelText(recording->machine.unit);
    channel.color = style.color;
    channel.properties = bearingProperties(recording->machine);
    channel.properties[KindProperty] = RawKind;
    if (countGaps(recording->x, recording->y) > 0) {
        offerPairs(channel, heldPairs(*recording));
    } else {
        offerPairs(channel, recording);
    }
    return channel;
}

std::string assign(HostDescription& host, const char* kind, ChannelDescription channel) {
    std::string id = kind + std::to_string(host.assigned.groups.size() + 1);
    host.channels[id] = std::move(channel);
    return id;
}

void setClock(HostDescription& host, double sampleRate, std::size_t position) {
    const auto linear = static_cast<std::int32_t>(position);
    const std::int32_t blockSize = host.host.blockSize;
    host.host.sampleRate = sampleRate;
    host.host.currentPosition = {linear / blockSize, linear % blockSize};
    host.host.lastPosition = host.host.currentPosition;
    host.host.acquiredSampleCount = linear + 1;
}

// How many samples of the channel there are up to the position; those that carry their own time
// stamps are there once the clock has gone beyond them.
std::size_t countUpTo(const ChannelDescription& channel, double sampleRate, std::size_t position) {
    if (!channel.asynchronous) return position + 1;
    const std::vector<double>& stamps = channel.timestamps.list();
    const double now = static_cast<double>(position) / sampleRate;
    return static_cast<std::size_t>(std::lower_bound(stamps.begin(), stamps.end(), now) -
                                    stamps.begin());
}

// As many samples as there are up to the position, in a buffer for all of them.
void fillUpTo(ChannelDescription& channel, double sampleRate, std::size_t position) {
    const std::int32_t size = channel.bufferSize.value_or(0);
    if (size == 0) return;
    const std::size_t count = countUpTo(channel, sampleRate, position);
    channel.sampleCount =
        static_cast<std::int32_t>(std::min(count, static_cast<std::size_t>(size)));
    channel.sampleCounter = channel.sampleCount;
    channel.writePosition = channel.sampleCount % size;
}

}  // namespace

RawOrbit rawOrbit(const std::shared_ptr<const Recording>& recording, const RawOrbitStyle& style) {
    RawOrbit result;
    if (recording->hasTacho()) result.tacho = tachoChannel(recording);
    result.orbit = orbitChannel(recording, style);
    return result;
}

RawOrbit rawOrbit(Recording recording, const RawOrbitStyle& style) {
    return rawOrbit(std::make_shared<const Recording>(std::move(recording)), style);
}

void assignRawOrbit(HostDescription& host, RawOrbit orbit) {
    HostKit::GroupDescription group;
    group.properties[KindProperty] = RawKind;
    group.channels.emplace_back(assign(host, "orbit", std::move(orbit.orbit)));
    if (orbit.tacho) group.channels.emplace_back(assign(host, "tacho", std::move(*orbit.tacho)));
    host.assigned.groups.push_back(std::move(group));
    host.assigned.slots = {{GroupSlot}};
}

void setAxisDecimals(HostDescription& host, std::int32_t decimals) {
    if (host.assigned.channels.empty()) {
        host.channels["digits"].properties =
            host.channels[*host.assigned.groups.at(0).channels.at(0)].properties;
        host.assigned.channels = {"digits"};
    }
    for (const HostKit::ChannelItem& id : host.assigned.channels)
        if (id) host.channels[*id].decimals = decimals;
}

void showStored(HostDescription& host, double sampleRate, std::size_t position) {
    host.host.acquiring = false;
    setClock(host, sampleRate, position);
    for (const std::string& id : host.channels.ids()) {
        ChannelDescription& channel = host.channels[id];
        channel.sampleCount = channel.bufferSize.value_or(0);
    }
}

void showAcquired(HostDescription& host, double sampleRate, std::size_t position) {
    host.host.acquiring = true;
    setClock(host, sampleRate, position);
    for (const std::string& id : host.channels.ids())
        fillUpTo(host.channels[id], sampleRate, position);
}

}  // namespace Rotavue::Workbench
