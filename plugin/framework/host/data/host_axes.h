#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] One array axis: element k of an array stands at start + k * step. It comes
/// from `IHostAxisList::getAxis`.
class IHostAxis : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{7A49908D-487A-4F85-96F2-D53B745E91CF}");

    /// The value of element 0. [place 3]
    virtual double getStart() = 0;

    /// The distance between elements. [place 5]
    virtual double getStep() = 0;

protected:
    ~IHostAxis() = default;
};

/// [host implements] The array axes of a channel. It comes from `IHostChannel::getAxes`.
class IHostAxisList : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{0DB0148A-639A-4ADC-B781-213B14F1F9EF}");

    /// The axis of that index, counted from 0. [place 1 | may be null]
    virtual Ref<IHostAxis> getAxis(std::int32_t index) = 0;

protected:
    ~IHostAxisList() = default;
};

}  // namespace Meridax::Host
