#include "host_kit/memory/memory_channel.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Rotavue::HostKit {

namespace {

/// floor(seconds * rate + 0.5), held inside the samples; 0 for no number at all.
std::int32_t nearestSample(double seconds, double rate, std::int32_t count) {
    const double nearest = std::floor(seconds * rate + 0.5);
    if (!(nearest > 0.0) || count <= 0) return 0;
    return static_cast<std::int32_t>(std::min(nearest, static_cast<double>(count - 1)));
}

}  // namespace

MemoryChannel::MemoryChannel(MemoryHost& host, std::string id)
    : LastingObject(host),
      id_(std::move(id)),
      described_(host.description.channels.record(id_)),
      properties_(host, [this] { return &described_.properties; }),
      axes_(host, described_) {}

std::int32_t MemoryChannel::getBufferSize() {
    return call(operation("IHostChannel.getBufferSize"),
                [&] { return described_.bufferSize.value_or(described_.sampleCount); });
}

std::int32_t MemoryChannel::getSampleCount() {
    return call(operation("IHostChannel.getSampleCount"), [&] { return described_.sampleCount; });
}

std::int32_t MemoryChannel::getWritePosition() {
    return call(operation("IHostChannel.getWritePosition"),
                [&] { return described_.writePosition; });
}

std::wstring MemoryChannel::getName() {
    return call(operation("IHostChannel.getName"), [&] { return described_.name; });
}

double MemoryChannel::getTimestamp(std::int32_t index) {
    return call(
        operation("IHostChannel.getTimestamp"), [&] { return described_.timestamps.at(index); },
        index);
}

bool MemoryChannel::isAsynchronous() {
    return call(operation("IHostChannel.isAsynchronous"), [&] { return described_.asynchronous; });
}

std::wstring MemoryChannel::getUnit() {
    return call(operation("IHostChannel.getUnit"), [&] { return described_.unit; });
}

std::uint32_t MemoryChannel::getColor() {
    return call(operation("IHostChannel.getColor"), [&] { return described_.color; });
}

double MemoryChannel::getDisplayValue() {
    return call(operation("IHostChannel.getDisplayValue"), [&] { return described_.displayValue; });
}

std::int32_t MemoryChannel::getSampleCounter() {
    return call(operation("IHostChannel.getSampleCounter"),
                [&] { return described_.sampleCounter; });
}

std::int32_t MemoryChannel::getRateDivider() {
    return call(operation("IHostChannel.getRateDivider"), [&] { return described_.rateDivider; });
}

Host::Ref<Host::IHostAxisList> MemoryChannel::getAxes() {
    return call(operation("IHostChannel.getAxes"), [&] {
        return Host::Ref<Host::IHostAxisList>::share(described_.axes ? &axes_ : nullptr);
    });
}

bool MemoryChannel::isArray() {
    return call(operation("IHostChannel.isArray"), [&] { return described_.array; });
}

std::int32_t MemoryChannel::getArraySize() {
    return call(operation("IHostChannel.getArraySize"), [&] { return described_.arraySize; });
}

std::int32_t MemoryChannel::getStorageKind() {
    return call(operation("IHostChannel.getStorageKind"), [&] { return described_.storageKind; });
}

double MemoryChannel::scaleValue(double raw) {
    return call(
        operation("IHostChannel.scaleValue"),
        [&] { return raw * described_.scale.factor + described_.scale.offset; }, raw);
}

Host::Ref<Host::IHostProperties> MemoryChannel::getProperties() {
    return call(operation("IHostChannel.getProperties"),
                [&] { return Host::Ref<Host::IHostProperties>::share(&properties_); });
}

std::int32_t MemoryChannel::sampleAt(double seconds) const {
    if (described_.asynchronous) return described_.timestamps.lastNotAbove(seconds);
    return nearestSample(seconds, described_.sampleRate, described_.sampleCount);
}

double MemoryChannel::getValueAtTime(double seconds, std::int32_t& cursor, std::int16_t mode,
                                     std::int32_t element, std::int32_t component) {
    return call(
        operation("IHostChannel.getValueAtTime"),
        [&] {
            cursor = sampleAt(seconds);
            const std::int64_t index = std::int64_t{cursor} * described_.arraySize + element;
            return described_.values.at(index, component);
        },
        seconds, cursor, mode, element, component);
}

double MemoryChannel::getValue(std::int32_t linearIndex, std::int32_t component) {
    return call(
        operation("IHostChannel.getValue"),
        [&] { return described_.values.at(linearIndex, component); }, linearIndex, component);
}

double MemoryChannel::getSampleRate() {
    return call(operation("IHostChannel.getSampleRate"), [&] { return described_.sampleRate; });
}

std::int32_t MemoryChannel::getDecimals() {
    return call(operation("IHostChannel.getDecimals"), [&] { return described_.decimals; });
}

}  // namespace Rotavue::HostKit
