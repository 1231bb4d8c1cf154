#include "plugin/orbit_graph/primitives.h"

#include "tests/plugin/orbit_graph/recording_canvas.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

class Primitives : public testing::Test {
protected:
    RecordingCanvas canvas_;
    CanvasRef ref_ = canvas_.ref();
};

TEST_F(Primitives, SegmentEndsAreTestedByThemselvesAndTouchNoPen) {
    drawSegments(ref_, {{{1, 2}, {3, 4}}, {{40000, 2}, {5, 6}}, {{7, 8}, {40000, 4}}});
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.MoveTo(1, 2)", "IHostCanvas.LineTo(3, 4)",
                                      "IHostCanvas.LineTo(5, 6)", "IHostCanvas.MoveTo(7, 8)"}));
}

TEST_F(Primitives, FilledShapesSetPenThenBrush) {
    fillRectangle(ref_, {1, 2, 3, 4}, 11, 12);
    fillEllipse(ref_, {5, 6, 7, 8}, 13, 14);
    EXPECT_EQ(canvas_.taken(),
              (Lines{"IHostPen.SetStyle(0)", "IHostPen.SetColor(12)", "IHostBrush.SetStyle(0)",
                     "IHostBrush.SetColor(11)", "IHostCanvas.Rectangle(1, 2, 3, 4)",
                     "IHostPen.SetStyle(0)", "IHostPen.SetColor(14)", "IHostBrush.SetStyle(0)",
                     "IHostBrush.SetColor(13)", "IHostCanvas.Ellipse(5, 6, 7, 8)"}));
}

TEST_F(Primitives, RefusedShapeStillSetsItsColours) {
    fillRectangle(ref_, {40000, 2, 40001, 4}, 11, 12);
    EXPECT_EQ(canvas_.taken().size(), 4U);
}

TEST_F(Primitives, StrokedEllipsesAreNotFilled) {
    strokeEllipses(ref_, {{1, 2, 3, 4}, {40000, 0, 40001, 0}, {5, 6, 7, 8}}, 12);
    EXPECT_EQ(canvas_.taken(),
              (Lines{"IHostPen.SetStyle(0)", "IHostPen.SetColor(12)", "IHostBrush.SetStyle(1)",
                     "IHostCanvas.Ellipse(1, 2, 3, 4)", "IHostCanvas.Ellipse(5, 6, 7, 8)"}));
}

TEST_F(Primitives, TextAtAPointStandsInABoxOfItsSize) {
    drawTextAt(ref_, {10.5, 20.5}, L"abc");
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.TextRect(10, 20, 34, 36, \"abc\", 256)"}));
}

TEST_F(Primitives, EmptyTextIsDrawnLikeAnyOther) {
    drawTextAt(ref_, {10, 20}, L"");
    EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.TextRect(10, 20, 10, 36, \"\", 256)"}));
}

TEST_F(Primitives, UprightTextKnowsNoGuard) {
    drawTextUp(ref_, {-40000.9, 20.9}, L"abc");
    EXPECT_EQ(canvas_.taken(),
              (Lines{"IHostFont.SetOrientation(900)", "IHostCanvas.TextOut(-40000, 20, \"abc\")",
                     "IHostFont.SetOrientation(0)"}));
}

TEST_F(Primitives, CornerTextKeepsHalfAFontHeightAwayWhateverItsSign) {
    // round(15 * 0.5) = 8.
    for (const std::int32_t height : {15, -15}) {
        canvas_.host.description.canvas.fontHeight = height;
        drawCornerText(ref_, L"abc");
        EXPECT_EQ(canvas_.taken(), (Lines{"IHostCanvas.TextRect(8, 8, 32, 24, \"abc\", 256)"}));
    }
}

TEST_F(Primitives, SmallestFontHeightHasALengthOfItsOwn) {
    canvas_.host.description.canvas.fontHeight = -2147483647 - 1;
    EXPECT_EQ(fontLength(ref_), 2147483648.0);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
