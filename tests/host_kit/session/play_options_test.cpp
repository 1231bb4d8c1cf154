#include "host_kit/session/play.h"
#include "tests/plugin/setup_document/c_locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <sstream>

namespace Rotavue::HostKit {
namespace {

TEST(CallGroupsText, NamesGroupsByCommas) {
    EXPECT_EQ(parseCallGroups("draw,data"), groups({CallGroup::Draw, CallGroup::Data}));
    EXPECT_EQ(parseCallGroups("all"), allGroups());
    EXPECT_EQ(parseCallGroups(""), CallGroups{});
    EXPECT_EQ(parseCallGroups("draw,paint"), std::nullopt);
    EXPECT_EQ(parseCallGroups("draw,,data"), std::nullopt);
}

TEST(ClassicLocale, HoldsForOnePlayOnly) {
    const Meridax::Tests::CLocale german("de_DE.UTF-8");
    ASSERT_TRUE(german.isSet());
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::ostringstream log;
    std::ostringstream errors;
    playSession("/nowhere.json", {}, log, errors);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
    EXPECT_NE(before, "C");
}

}  // namespace
}  // namespace Rotavue::HostKit
