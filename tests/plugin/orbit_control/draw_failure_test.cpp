#include "tests/plugin/orbit_control/full_frame.h"

#include <new>

namespace Meridax::VisualControls::Rotavue {
namespace {

class DrawFailure : public FullFrame {};

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

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
