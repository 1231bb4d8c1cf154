#include "tests/plugin/orbit_control/control_test.h"

#include <new>

namespace Meridax::VisualControls::Rotavue {
namespace {

/// One group and one channel of each kind, and a frame that has been drawn of them.
class DrawFailure : public ControlTest {
protected:
    DrawFailure() {
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

TEST_F(DrawFailure, OfAnyCallLeavesTheDrawAndTheNextFrameIsWhole) {
    const Lines whole = callsOf([&] { draw(); }, drawing());
    const std::int64_t calls = callsOfAFrame();
    host.gate.watch(nullptr, {});
    for (std::int64_t n = 1; n <= calls; ++n) {
        host.gate.fail({std::nullopt, n});
        expectHostError(0x80004005, [&] { draw(); });
        ASSERT_EQ(host.references(), 2) << "application and control, after call " << n;
    }
    host.description.canvas = {};  // the font's height stays where a failure left it
    EXPECT_EQ(callsOf([&] { draw(); }, drawing()), whole);
}

TEST_F(DrawFailure, OfAnyNullObjectIsAnInvalidPointer) {
    for (const char* name :
         {"IHostVisualControl.getChannels", "IHostVisualControl.getGroups",
          "IHostChannelCollection.getItem", "IHostGroupCollection.getItem", "IHostApp.getData",
          "IHostChannel.getProperties", "IHostChannel.getAxes", "IHostAxisList.getAxis",
          "IHostCanvas.GetPen", "IHostCanvas.GetBrush", "IHostCanvas.GetFont"}) {
        host.gate.setNulls(HostKit::Operations{}.set(indexOf(*HostKit::findOperation(name))));
        expectHostError(0x80004003, [&] { draw(); });
        EXPECT_EQ(host.references(), 2) << name;
    }
    host.gate.setNulls({});
    EXPECT_NO_THROW(draw());
}

TEST_F(DrawFailure, OfTheCanvasLeavesWhatWasDrawn) {
    host.record(drawing());
    host.fail(HostKit::operation("IHostCanvas.LineTo"), 3);
    expectHostError(0x80004005, [&] { draw(); });
    const Lines lines = host.takeCalls();
    EXPECT_EQ(linesOf(lines, "IHostCanvas.LineTo").size(), 3U);
    EXPECT_EQ(linesOf(lines, "IHostCanvas.Rectangle").size(), 1U) << "the plot's background";
    EXPECT_EQ(key.dataExtents.isUnset(), false) << "the data had been read";
}

TEST_F(DrawFailure, OfAReadLeavesTheExtentsThatWereFoldedUntilThen) {
    // The group is folded, then the first plain channel, an average without an axis, fails.
    channel("0").axes->clear();
    expectHostError(0x80004003, [&] { draw(); });
    // The tacho's count less one leaves the newest four of five points.
    EXPECT_EQ(key.dataExtents.range(), (Range{2.0, 5.0, 10.0, 40.0}));
}

TEST_F(DrawFailure, OfAnAngleIsThatOfTheText) {
    channel("4").properties[L"Orbit X Angle"] = L"right";
    EXPECT_THROW(draw(), std::invalid_argument);
    channel("4").properties[L"Orbit X Angle"] = L"1e99";
    EXPECT_THROW(draw(), std::out_of_range);
}

TEST_F(DrawFailure, NullCanvasIsAnInvalidPointer) {
    Api::DrawContext frame = context();
    frame.canvas = nullptr;
    expectHostError(0x80004003, [&] { control.draw(frame); });
}

/// A host that draws again, changes the assignment and asks for data from within its own answers.
class Meddler : public HostKit::CallWatcher {
public:
    Meddler(RotavueVisualControl& control, Api::DrawContext frame, HostKit::MemoryHost& host)
        : control_(control), frame_(std::move(frame)), host_(host) {}

    void onReturn(const HostKit::Call&) override {
        if (busy_ || ++calls_ % 97 != 0) return;
        busy_ = true;
        control_.draw(frame_);
        Host::DataPosition first;
        Host::DataPosition second;
        control_.requestData(first, second);
        host_.description.assigned.channels.pop_back();
        busy_ = false;
    }

private:
    RotavueVisualControl& control_;
    Api::DrawContext frame_;
    HostKit::MemoryHost& host_;
    bool busy_ = false;
    int calls_ = 0;
};

TEST_F(DrawFailure, HostMayMeddleInTheMiddleOfADraw) {
    for (int i = 5; i < 45; ++i)
        assignCurve(std::to_string(i), L"Reference");
    Meddler meddler(control, context(), host);
    host.gate.watch(&meddler, HostKit::allGroups());
    try {
        draw();
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, 0x80004003U) << "a channel that has gone is null";
    }
    host.gate.watch(nullptr, {});
    EXPECT_NO_THROW(draw());
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
