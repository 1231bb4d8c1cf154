#include "plugin/framework/host/host_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Meridax::Host {
namespace {

TEST(HostText, IsTheTextAsItStands) {
    EXPECT_EQ(hostText(L"Tick\u00B5"), L"Tick\u00B5");
    EXPECT_EQ(hostText(L""), L"");
}

TEST(MadeText, TurnsExhaustedMemoryIntoItsStatus) {
    try {
        madeText([]() -> std::wstring { throw std::bad_alloc(); });
        FAIL() << "no exception";
    } catch (const HostError& error) {
        EXPECT_EQ(error.status, 0x8007000EU);
        EXPECT_EQ(error.interfaceId, Guid{});
    }
}

TEST(MadeText, LetsEveryOtherFailurePass) {
    EXPECT_THROW(madeText([]() -> std::string { throw std::length_error("too long"); }),
                 std::length_error);
}

}  // namespace
}  // namespace Meridax::Host
