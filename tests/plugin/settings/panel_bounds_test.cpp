#include "plugin/orbit_control/read_allowance.h"
#include "plugin/orbit_graph/scales.h"
#include "plugin/settings/clipboard_writer.h"
#include "plugin/settings/panel_table.h"

#include <gtest/gtest.h>

// What bounds the work of a frame leaves every value alone that the property panel allows.
namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(PanelBounds, EveryNumberOfTicksIsDrawn) {
    const auto ticks = std::get<NumberEdit>(widgetNamed(L"TickCount").form);
    for (std::int32_t count = ticks.minimum; count <= ticks.maximum; ++count)
        EXPECT_EQ(drawnTickCount(count), count);
}

TEST(PanelBounds, TheLongestTimeIsReadWholeAtOneMegahertz) {
    const auto time = std::get<FloatEdit>(widgetNamed(L"HistoryTime").form);  // milliseconds
    EXPECT_GE(static_cast<double>(ReadAllowance::Places), time.maximum / 1000.0 * 1e6);
}

TEST(PanelBounds, TheLongestTimeIsCopiedWholeAtThreeHundredKilohertz) {
    const auto time = std::get<FloatEdit>(widgetNamed(L"HistoryTime").form);  // milliseconds
    constexpr double RowLength = 22;  // "-1234.567\t-1234.567\r\n" has 21
    EXPECT_GE(static_cast<double>(ClipboardWriter::MostCharacters),
              time.maximum / 1000.0 * 3e5 * RowLength);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
