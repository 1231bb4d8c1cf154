#include "tests/plugin/orbit_graph/graph_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Rotavue {
namespace {

struct Captions : testing::Test, LaidOutGraph {};

TEST_F(Captions, TitlesStandOneLineBeyondTheTicks) {
    graph.drawAxisTitles(canvas.ref(), L"um");
    EXPECT_EQ(canvas.taken(), (Lines{"IHostBrush.SetStyle(1)",
                                     "IHostCanvas.TextRect(106, 256, 194, 272, "
                                     "\"X axis (um)\", 256)",
                                     "IHostFont.SetOrientation(900)",
                                     "IHostCanvas.TextOut(28, 194, \"Y axis (um)\")",
                                     "IHostFont.SetOrientation(0)"}));
}

TEST_F(Captions, TitlesWithoutAUnitHaveEmptyBrackets) {
    graph.drawAxisTitles(canvas.ref(), L"");
    EXPECT_EQ(canvas.taken("IHostCanvas.TextOut"),
              (Lines{"IHostCanvas.TextOut(28, 186, \"Y axis ()\")"}));
}

TEST_F(Captions, TitlesMoveWithTheView) {
    graph.panBy(10, 5);
    graph.drawAxisTitles(canvas.ref(), L"um");
    EXPECT_EQ(canvas.taken("IHostCanvas.TextOut"),
              (Lines{"IHostCanvas.TextOut(38, 199, \"Y axis (um)\")"}));
}

TEST_F(Captions, ErrorStandsInTheCornerWhateverThePlot) {
    graph.drawError(canvas.ref(), L"Oops");
    EXPECT_EQ(canvas.taken(),
              (Lines{"IHostPen.SetColor(3)", "IHostBrush.SetStyle(1)", "IHostFont.SetColor(3)",
                     "IHostCanvas.TextRect(11, 11, 43, 27, \"Oops\", 256)"}));
}

TEST_F(Captions, TitlesEndAUnitAtItsFirstZeroCharacter) {
    graph.drawAxisTitles(canvas.ref(), std::wstring(L"um\0mil", 6));
    EXPECT_EQ(canvas.taken("IHostCanvas.TextOut"),
              (Lines{"IHostCanvas.TextOut(28, 194, \"Y axis (um)\")"}));
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
