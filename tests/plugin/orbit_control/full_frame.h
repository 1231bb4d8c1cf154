#pragma once

#include "tests/plugin/orbit_control/control_test.h"

namespace Meridax::VisualControls::Rotavue {

/// One group and one channel of each kind, and a frame that has been drawn of them.
class FullFrame : public ControlTest {
protected:
    FullFrame() {
        key.graph.setHistoryType(1);
        host.description.host.sampleRate = 1000.0;
        key.displayTime = 5.0;
        describeOrbit("orbit", {1.0, 2.0, 3.0, 4.0, 5.0}, {50.0, 40.0, 30.0, 20.0, 10.0});
        describeTacho("tacho", {10.0, 350.0, 340.0, 330.0, 320.0});
        assignGroup({"orbit", "tacho"});
        for (const wchar_t* type : {L"Average", L"Harmonic", L"", L"Reference", L"SubSync"})
            assignCurve(std::to_string(host.description.assigned.channels.size()), type);
        control.onMouseEnter();
        draw();
    }

    void assignCurve(const std::string& id, const std::wstring& type) {
        HostKit::ChannelDescription& described = assignChannel(id, type);
        described.array = true;
        described.arraySize = 4;
        described.sampleCount = 2;
        described.axes = {{{0.0, 90.0}}};
        for (const std::int32_t component : {0, 4, 5})
            described.values[component] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0};
    }

    std::int64_t callsOfAFrame() {
        return static_cast<std::int64_t>(callsOf([&] { draw(); }).size());
    }
};

}  // namespace Meridax::VisualControls::Rotavue
