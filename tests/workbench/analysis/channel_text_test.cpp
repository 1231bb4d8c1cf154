#include "workbench/analysis/channel_text.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(ChannelText, IsWideAndSurvivesBytesOfAnotherEncoding) {
    EXPECT_EQ(channelText("\xC2\xB5m"), L"\u00B5m");
    EXPECT_EQ(channelText("\xB5m"), L"?m");
}

}  // namespace
}  // namespace Rotavue::Workbench
