#pragma once

#include "tests/plugin/orbit_control/control_test.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {

/// Frames of raw and of reference orbits, five samples by time.
class FrameTest : public ControlTest {
protected:
    FrameTest() {
        key.graph.setHistoryType(1);
        host.description.host.sampleRate = 1000.0;
        key.displayTime = 5.0;
    }

    /// Five points, newest first 7, 7 then 0, -10 then -10, 0 then 0, 10 then 10, 0.
    HostKit::ChannelDescription& assignOrbit(const std::string& id = "orbit") {
        HostKit::ChannelDescription& orbit =
            describeOrbit(id, {10.0, 0.0, -10.0, 0.0, 7.0}, {0.0, 10.0, 0.0, -10.0, 7.0});
        orbit.name = L"Shaft";
        orbit.unit = L"um";
        orbit.color = 255;
        assignGroup({id});
        return orbit;
    }

    /// A reference orbit of one point at 3, 4.
    HostKit::ChannelDescription& assignReference(const std::string& id, const std::wstring& unit) {
        HostKit::ChannelDescription& reference = assignChannel(id, L"Reference");
        reference.sampleCount = 1;
        reference.values[4] = {3.0};
        reference.values[5] = {4.0};
        reference.name = L"Reference";
        reference.unit = unit;
        return reference;
    }

    Lines drawn() {
        return callsOf([&] { draw(); }, drawing());
    }

    static bool hasText(const Lines& lines, const std::string& text) {
        return std::ranges::any_of(lines, [&](const std::string& line) {
            return line.find('"' + text + '"') != std::string::npos;
        });
    }
};

}  // namespace Meridax::VisualControls::Rotavue
