#include "plugin/orbit_graph/clipped_canvas.h"

#include "tests/plugin/orbit_graph/recording_canvas.h"
#include "tests/support/exhausted_memory.h"

#include <gtest/gtest.h>

#include <limits>

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

class ClippedCanvasTest : public testing::Test {
protected:
    RecordingCanvas canvas_;
    ClippedCanvas clipped_{canvas_.ref()};
};

TEST_F(ClippedCanvasTest, DroppedMoveLeavesThePenWhereItWas) {
    clipped_.moveTo({10, 10});
    clipped_.moveTo({40000, 10});
    clipped_.lineTo({20.9, -20.9});
    EXPECT_EQ(canvas_.taken(),
              (Lines{"IHostCanvas.MoveTo(10, 10)", "IHostCanvas.LineTo(20, -20)"}));
}

TEST_F(ClippedCanvasTest, BoundsBelongToTheRange) {
    clipped_.lineTo({32767, -32767});
    clipped_.lineTo({32767.25, 0});
    clipped_.lineTo({0, -32767.25});
    clipped_.lineTo({NotANumber, 0});
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.LineTo(32767, -32767)"}));
}

TEST_F(ClippedCanvasTest, TallBoxPassesWhateverItsHeight) {
    clipped_.rectangle({0, -99999, 10, 99999});
    clipped_.ellipse({-32766, 40000, 32766, -40000});
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.Rectangle(0, -99999, 10, 99999)",
                                      "IHostCanvas.Ellipse(-32766, 40000, 32766, -40000)"}));
}

TEST(ClippedCanvas, TopAndBottomCountOnlyOnATie) {
    struct Case {
        Rectangle box;
        bool admitted;
    };
    const Case cases[] = {
        {{-32768, 0, 10, 0}, false},             // left beyond
        {{0, 0, 32768, 0}, false},               // right beyond
        {{32768, 0, 0, 0}, false},               // left beyond the upper bound
        {{-32767, -40000, 0, 0}, false},         // left on the bound, top beyond it
        {{-32767, 40000, 0, 0}, true},           // top beyond the other bound does not count there
        {{32767, 40000, 0, 0}, false},           // the same at the upper bound
        {{0, 0, 32767, 40000}, false},           // right on the bound, bottom beyond it
        {{0, 0, 32767, 40}, true},               // right on the bound, bottom within
        {{NotANumber, 0, NotANumber, 0}, true},  // below and above nothing
    };
    for (const Case& c : cases)
        EXPECT_EQ(ClippedCanvas::admits(c.box), c.admitted) << c.box.left << " " << c.box.right;
}

TEST_F(ClippedCanvasTest, ArcHandsItsBoxOnAsLeftBottomRightTop) {
    clipped_.arc({1, 2, 3, 4}, {5, 6}, {7, 8});
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.Arc(1, 4, 3, 2, 5, 6, 7, 8)"}));
}

TEST_F(ClippedCanvasTest, ArcTestsBoxStartAndEnd) {
    clipped_.arc({-40000, 2, 3, 4}, {5, 6}, {7, 8});
    clipped_.arc({1, 2, 3, 4}, {40000, 6}, {7, 8});
    clipped_.arc({1, 2, 3, 4}, {5, 6}, {7, -40000});
    EXPECT_TRUE(canvas_.taken().empty());
}

TEST_F(ClippedCanvasTest, TextIsDroppedWithItsBox) {
    clipped_.textRect({1, 2, 3, 4}, L"in", 0x100);
    clipped_.textRect({40000, 2, 50000, 4}, L"out", 0x100);
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.TextRect(1, 2, 3, 4, \"in\", 256)"}));
}

TEST_F(ClippedCanvasTest, TextIsCopiedBeforeItsBoxIsTested) {
    // Where the copy gets no memory, a box that would be dropped raises as well.
    const std::wstring text(100, L'A');
    for (const double left : {0.0, 40000.0}) {
        const auto draw = [&] { clipped_.textRect({left, 0, left, 0}, text, 0x100); };
        EXPECT_EQ(Meridax::Tests::statusWithMemoryFor(0, draw), Host::Status::OutOfMemory) << left;
    }
    EXPECT_TRUE(canvas_.taken().empty());
}

TEST_F(ClippedCanvasTest, PolygonLeavesOutThePointsBeyond) {
    clipped_.polygon({{1, 2}, {40000, 3}, {4, 5}});
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.Polygon([1, 2, 4, 5], 2)"}));
}

TEST_F(ClippedCanvasTest, PolygonWithoutAPointIsNotDrawn) {
    clipped_.polygon({{40000, 3}, {0, 99999}});
    clipped_.polygon({});
    EXPECT_TRUE(canvas_.taken().empty());
}

TEST(ClippedCanvas, HoldsTheCanvasForItsOwnLife) {
    RecordingCanvas canvas;
    {
        const ClippedCanvas clipped(canvas.ref());
        EXPECT_EQ(canvas.host.references(), 1);
    }
    EXPECT_EQ(canvas.host.references(), 0);
}

TEST(ClippedCanvas, NullCanvasRaisesInvalidPointer) {
    try {
        const ClippedCanvas clipped(nullptr);
        FAIL();
    } catch (const Host::HostError& error) {
        EXPECT_EQ(error.status, Host::Status::InvalidPointer);
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
