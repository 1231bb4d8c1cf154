#include "workbench/analysis/orbit_channels.h"

#include <memory>
#include <utility>
#include <vector>

#include "workbench/analysis/bearing_properties.h"
#include "workbench/analysis/channel_text.h"
#include "workbench/recording/gaps.h"

namespace Rotavue::Workbench {
namespace {

using HostKit::ChannelDescription;

constexpr std::int32_t XComponent = 4;
constexpr std::int32_t YComponent = 5;
constexpr std::int32_t PlainComponent = 0;
constexpr std::int32_t RealComponent = 4;
constexpr std::int32_t ImaginaryComponent = 5;
constexpr std::int32_t ShaftCenterElements = 4;
constexpr std::int32_t PlainSlot = 0;

// A channel of the kind that "OrbitType" names; the shaft centre's kind is the empty text.
ChannelDescription channelOf(const Recording& recording, const ChannelStyle& style,
                             const std::wstring& orbitType) {
    ChannelDescription channel;
    channel.name = channelText(style.name);
    channel.unit = channelText(recording.machine.unit);
    channel.color = style.color;
    channel.decimals = style.decimals;
    channel.sampleRate = recording.sampleRate;
    channel.properties = bearingProperties(recording.machine);
    channel.properties[L"OrbitType"] = orbitType;
    channel.properties[L"OrbitAnalysisChannelType"] = L"Orbit";
    return channel;
}

// `samples` samples of `elements` elements fill the ring buffer: the next one goes to its begin.
void setSize(ChannelDescription& channel, std::size_t samples, std::size_t elements) {
    channel.sampleCount = static_cast<std::int32_t>(samples);
    channel.bufferSize = channel.sampleCount;
    channel.sampleCounter = channel.sampleCount;
    channel.writePosition = 0;
    channel.arraySize = static_cast<std::int32_t>(elements);
}

ChannelDescription angleChannel(const AveragedOrbit& orbit, const Recording& recording,
                                const ChannelStyle& style, const std::wstring& orbitType) {
    ChannelDescription channel = channelOf(recording, style, orbitType);
    setSize(channel, 1, orbit.x.size());
    channel.array = true;
    channel.axes = {{0.0, orbit.step()}};
    channel.values[XComponent] = orbit.x;
    channel.values[YComponent] = orbit.y;
    return channel;
}

const wchar_t* amplitudeText(AmplitudeScale scale) {
    switch (scale) {
        case AmplitudeScale::Rms:
            return L"rms";
        case AmplitudeScale::PeakPeak:
            return L"peak-peak";
        case AmplitudeScale::Peak:
            break;
    }
    return L"peak";
}

// r e^(j phi) with phi = 90 degrees - lag: the field's phasor turned on by a quarter.
std::complex<double> sinePhasor(const FieldVector& vector, AmplitudeScale scale) {
    return std::complex<double>(0.0, 1.0) * vector.phasor() * scaleFactor(scale);
}

}  // namespace

ChannelDescription averageChannel(const AveragedOrbit& orbit, const Recording& recording,
                                  const ChannelStyle& style) {
    return angleChannel(orbit, recording, style, L"Average");
}

ChannelDescription referenceChannel(const ReferenceOrbit& reference, const Recording& recording,
                                    const ChannelStyle& style) {
    return angleChannel(reference.orbit, recording, style, L"Reference");
}

ChannelDescription harmonicChannel(const Harmonics& harmonics, const Recording& recording,
                                   const ChannelStyle& style, AmplitudeScale scale) {
    ChannelDescription channel = channelOf(recording, style, L"Harmonic");
    setSize(channel, 1, 2 * harmonics.orders.size());
    channel.array = true;
    channel.axes = {{0.0, 1.0}};
    channel.properties[L"Orbit Amplitude"] = amplitudeText(scale);
    const auto put = [&](const FieldVector& vector) {
        const std::complex<double> phasor = sinePhasor(vector, scale);
        channel.values[RealComponent].push_back(phasor.real());
        channel.values[ImaginaryComponent].push_back(phasor.imag());
    };
    for (const OrderVectors& order : harmonics.orders)
        put(order.y);
    for (const OrderVectors& order : harmonics.orders)
        put(order.x);
    return channel;
}

ChannelDescription subSyncChannel(SubSyncOrbit orbit, const Recording& recording,
                                  const ChannelStyle& style) {
    ChannelDescription channel = channelOf(recording, style, L"SubSync");
    setSize(channel, orbit.x.size(), 1);
    holdGaps(orbit.x, orbit.y);
    // Copies of the channel share what may be as long as the recording.
    using List = const HostKit::VectorList;
    channel.values.share(XComponent, std::make_shared<List>(std::move(orbit.x)));
    channel.values.share(YComponent, std::make_shared<List>(std::move(orbit.y)));
    return channel;
}

ChannelDescription shaftCenterChannel(const ShaftCenterHistory& history, const Recording& recording,
                                      const ChannelStyle& style) {
    ChannelDescription channel = channelOf(recording, style, L"");
    setSize(channel, history.positions.size(), ShaftCenterElements);
    channel.properties[L"OrbitAnalysisChannelType"] = L"ShaftCenter";
    channel.array = true;
    channel.axes = {{0.0, 1.0}};
    channel.asynchronous = true;
    channel.sampleRate = 0.0;
    std::vector<double>& values = channel.values[PlainComponent];
    std::vector<double> stamps;
    for (const ShaftCenterPosition& position : history.positions) {
        stamps.push_back(position.time);
        for (const double value :
             {position.y, position.x, position.speed, history.startTime + position.time})
            values.push_back(value);
    }
    channel.timestamps = std::move(stamps);
    return channel;
}

void assignDerived(HostKit::HostDescription& host, ChannelDescription channel) {
    const std::string id = "derived" + std::to_string(host.assigned.channels.size() + 1);
    host.channels[id] = std::move(channel);
    host.assigned.channels.emplace_back(id);
    if (host.assigned.slots.empty()) host.assigned.slots = {{PlainSlot}};
}

}  // namespace Rotavue::Workbench
