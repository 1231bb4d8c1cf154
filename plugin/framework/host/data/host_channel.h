#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <string>

namespace Meridax::Host {

class IHostAxisList;
class IHostProperties;

/// [host implements] One measured channel: its samples and its description. It comes from a
/// collection or a list, or as the argument of message 3, and is valid while the reference is held.
class IHostChannel : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{CAE48A7C-581E-4C0B-AE4F-7A2EB89C0DFF}");

    /// Length of the ring buffer in samples. [place 4]
    virtual std::int32_t getBufferSize() = 0;

    /// Number of samples held. [place 5]
    virtual std::int32_t getSampleCount() = 0;

    /// Ring-buffer index of the next sample to be written. [place 6]
    virtual std::int32_t getWritePosition() = 0;

    /// The channel's name. [place 13]
    virtual std::wstring getName() = 0;

    /// Time in seconds of a held sample of an asynchronous channel. [place 15]
    virtual double getTimestamp(std::int32_t index) = 0;

    /// True when the samples carry their own time stamps. [place 25]
    virtual bool isAsynchronous() = 0;

    /// The engineering unit. [place 36]
    virtual std::wstring getUnit() = 0;

    /// The display colour, in the host's encoding; it becomes the colour of the trace. [place 45]
    virtual std::uint32_t getColor() = 0;

    /// A further number that travels with the curve. [place 61]
    virtual double getDisplayValue() = 0;

    /// The running sample counter, compared with `IHostData::getAcquiredSampleCount`. [place 71]
    virtual std::int32_t getSampleCounter() = 0;

    /// Samples of the master clock per sample of the channel, above 0. [place 77]
    virtual std::int32_t getRateDivider() = 0;

    /// The array axes of an array channel. [place 118 | may be null]
    virtual Ref<IHostAxisList> getAxes() = 0;

    /// True when each sample is an array with axes. [place 119]
    virtual bool isArray() = 0;

    /// Elements per sample; 1 for a scalar channel. [place 121]
    virtual std::int32_t getArraySize() = 0;

    /// 1 marks a channel that has no stored data to show outside acquisition. [place 124]
    virtual std::int32_t getStorageKind() = 0;

    /// Applies the channel's scaling to a value of `getValueAtTime`. [place 150]
    virtual double scaleValue(double raw) = 0;

    /// The named text properties of the channel. [place 182 | never null in normal use]
    virtual Ref<IHostProperties> getProperties() = 0;

    /// The raw value at a time in seconds. `cursor` speeds up the host's search and is the host's
    /// to change; `mode` is always 0. [place 191]
    virtual double getValueAtTime(double seconds, std::int32_t& cursor, std::int16_t mode,
                                  std::int32_t element, std::int32_t component) = 0;

    /// The scaled value at a linear index, sample * array size + element. [place 192]
    virtual double getValue(std::int32_t linearIndex, std::int32_t component) = 0;

    /// The channel's own rate in Hz; 0 when it has none. [place 205]
    virtual double getSampleRate() = 0;

    /// Digits behind the point that are wanted for the values of this channel. [place 208]
    virtual std::int32_t getDecimals() = 0;

protected:
    ~IHostChannel() = default;
};

}  // namespace Meridax::Host
