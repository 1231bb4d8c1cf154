#include "plugin/module/windows/platform_headers.h"
#include "plugin/setup_document/string_helper.h"

#include <gtest/gtest.h>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

TEST(CodePages, Utf8BecomesWideWithEveryCodePoint) {
    EXPECT_EQ(utf8ToWide("\xC2\xB5m \xF0\x9F\x98\x80"), L"\x00B5m \xD83D\xDE00");
    EXPECT_EQ(utf8ToWide(""), L"");
}

TEST(CodePages, InvalidUtf8IsTheEmptyText) {
    EXPECT_EQ(utf8ToWide("\xFF"), L"");
    EXPECT_EQ(utf8ToWide("good\xC3"), L"");
    EXPECT_EQ(utf8ToWide("\xED\xA0\x80"), L"");  // a surrogate
}

TEST(CodePages, WideBecomesUtf8) {
    EXPECT_EQ(wideToUtf8(L"\x00B5m \xD83D\xDE00"), "\xC2\xB5m \xF0\x9F\x98\x80");
    EXPECT_EQ(wideToUtf8(L""), "");
}

TEST(CodePages, NullHostStringIsEmpty) {
    EXPECT_EQ(bstrToUtf8(nullptr), "");
    EXPECT_EQ(bstrToUtf8(L"\x00B5"), "\xC2\xB5");
}

TEST(CodePages, TextEndsAtItsFirstZero) {
    EXPECT_EQ(utf8ToWide(std::string("a\0b", 3)), L"a");
    EXPECT_EQ(wideToUtf8(std::wstring(L"a\0b", 3)), "a");
    EXPECT_EQ(textToHost(std::string("a\0b", 3)), L"a");
    EXPECT_EQ(hostToText(std::wstring(L"a\0b", 3)), "a");
}

TEST(CodePages, KeysAndNumbersCrossAsTheyAre) {
    EXPECT_EQ(textToHost("tickCount"), L"tickCount");
    EXPECT_EQ(hostToText(L"-1.000000000000000"), "-1.000000000000000");
}

/// One character above ASCII, in whatever 8-bit page the process has.
TEST(CodePages, OtherTextCrossesInTheProcesssOwnPage) {
    const char text[] = "\xE4";
    wchar_t expected[3] = {};
    ::MultiByteToWideChar(::GetACP(), 0, text, -1, expected, 3);
    EXPECT_EQ(textToHost(text), expected);
    EXPECT_EQ(hostToText(expected), ::GetACP() == CP_UTF8 ? "\xEF\xBF\xBD" : "\xE4");
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
