#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "tests/plugin/orbit_control/control_access.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

namespace HostKit = ::Rotavue::HostKit;

using Lines = std::vector<std::string>;

/// How a failed expectation shows the records.
void PrintTo(const Point& point, std::ostream* out);
void PrintTo(const CurveSample& sample, std::ostream* out);
void PrintTo(const Range& range, std::ostream* out);
void PrintTo(const HistoryWindow& window, std::ostream* out);

/// What a frame puts on the canvas.
inline HostKit::CallGroups drawing() {
    return HostKit::groups({HostKit::CallGroup::Draw});
}

/// What the control asks of the host's data.
inline HostKit::CallGroups data() {
    return HostKit::groups({HostKit::CallGroup::Data});
}

/// The lines that begin with the text.
Lines linesOf(const Lines& lines, const std::string& beginning);

/// Expects `HostError` with that status.
template <class Operation>
void expectHostError(std::uint32_t status, Operation operation) {
    try {
        operation();
        ADD_FAILURE() << "nothing was raised";
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, status);
    }
}

/// A control that is attached to a host in memory.
class ControlTest : public testing::Test {
protected:
    ControlTest();

    /// The description of a channel, which may be changed at any time.
    HostKit::ChannelDescription& channel(const std::string& id) {
        return host.description.channels[id];
    }

    /// A channel with that "OrbitType", assigned by itself. Its X sensor stands at 90 degrees and
    /// its Y sensor at 0, so that sensor values are plot values.
    HostKit::ChannelDescription& assignChannel(const std::string& id, const std::wstring& type);

    /// An orbit channel with its sensors at 90 and 0 degrees and these samples, oldest first, the
    /// ring buffer being full.
    HostKit::ChannelDescription& describeOrbit(const std::string& id, std::vector<double> x,
                                               std::vector<double> y);

    /// A channel whose component 0 has these samples, oldest first, the ring buffer being full.
    HostKit::ChannelDescription& describeTacho(const std::string& id, std::vector<double> angles);

    void assignGroup(std::vector<HostKit::ChannelItem> channels);

    Host::Ref<Host::IHostChannelList> group(std::int32_t index) {
        return host.group(index).offered<Host::IHostChannelList>();
    }

    /// Draws a frame of 300 by 300 pixels at the canvas's origin, in dark colours.
    void draw();
    Api::DrawContext context();

    /// The calls of an operation, written down with everything that it asks the host's data.
    template <class Operation>
    Lines callsOf(Operation operation, HostKit::CallGroups groups = HostKit::allGroups()) {
        host.record(groups);
        operation();
        return host.takeCalls();
    }

    HostKit::MemoryHost host;
    RotavueVisualControl control;
    RotavueVisualControlAccess key{control};
};

}  // namespace Meridax::VisualControls::Rotavue
