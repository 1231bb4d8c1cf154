#pragma once

#include "host_kit/memory/component_values.h"
#include "host_kit/memory/time_stamps.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::HostKit {

/// raw * factor + offset.
struct Scale {
    double factor = 1.0;
    double offset = 0.0;
};

/// Element k of an array stands at start + k * step.
struct AxisDescription {
    double start = 0.0;
    double step = 0.0;
};

/// What one channel answers.
struct ChannelDescription {
    std::wstring name;
    std::wstring unit;
    std::uint32_t color = 0;
    double displayValue = 0.0;
    std::int32_t decimals = 0;
    bool asynchronous = false;  ///< the samples carry their own time stamps
    bool array = false;
    std::int32_t arraySize = 1;
    std::int32_t storageKind = 0;  ///< 1: nothing stored to show outside acquisition
    std::int32_t sampleCount = 0;
    std::int32_t writePosition = 0;
    std::int32_t sampleCounter = 0;
    std::optional<std::int32_t> bufferSize;  ///< as many as `sampleCount` where it is left out
    std::int32_t rateDivider = 1;
    double sampleRate = 0.0;  ///< Hz, the channel's own
    Scale scale;
    TimeStamps timestamps;
    std::optional<std::vector<AxisDescription>> axes = std::vector<AxisDescription>{};  ///< or null
    std::map<std::wstring, std::wstring> properties;
    ComponentValues values;  ///< by linear index = sample * arraySize + element
};

}  // namespace Rotavue::HostKit
