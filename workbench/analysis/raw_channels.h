#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "host_kit/memory/description.h"
#include "workbench/recording/recording.h"

/// The raw samples of a recording as a host offers them: a group of an orbit channel and, where the
/// recording has a keyphasor, a tacho channel.
namespace Rotavue::Workbench {

/// How a raw orbit shows in the graph.
struct RawOrbitStyle {
    std::string name;         ///< UTF-8
    std::uint32_t color = 0;  ///< in the host's encoding
};

/// The orbit channel has component 4 toward the X probe and 5 toward the Y probe, and says all
/// there is to say about the bearing; the tacho channel has the shaft's angle in degrees as
/// component 0. Both hold every sample of the recording, at its rate.
///
/// A gap in the recording holds the values before it (gaps.h): a channel has no word for a gap. Two
/// that are copies of each other share their samples.
struct RawOrbit {
    HostKit::ChannelDescription orbit;
    std::optional<HostKit::ChannelDescription> tacho;
};

/// The samples are those of the recording itself, which lives as long as any channel of it; only
/// where it has gaps, the orbit has its own.
RawOrbit rawOrbit(const std::shared_ptr<const Recording>& recording, const RawOrbitStyle& style);
RawOrbit rawOrbit(Recording recording, const RawOrbitStyle& style);

/// Assigns the orbit to the control as one more group. The control draws several only if they agree
/// in all that they say about the bearing.
void assignRawOrbit(HostKit::HostDescription& host, RawOrbit orbit);

/// The digits behind the point of the graph's numbers. The control looks for them in plain channels
/// alone: those that are assigned get them. Where there is none, and the control would take 0, a
/// plain channel is assigned that says so much and the bearing of the first group; being of the
/// kind of a raw orbit, which only groups have, it draws nothing.
void setAxisDecimals(HostKit::HostDescription& host, std::int32_t decimals);

/// The host analyses stored data, with its cursor on that sample; the channels' samples are given
/// by time. A position behind the last sample is the last one.
void showStored(HostKit::HostDescription& host, double sampleRate, std::size_t position);

/// The host is measuring, and that sample is the newest one: the channels' samples are given by
/// their place in ring buffers, which hold nothing newer.
void showAcquired(HostKit::HostDescription& host, double sampleRate, std::size_t position);

}  // namespace Rotavue::Workbench
