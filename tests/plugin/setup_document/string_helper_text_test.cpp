#include "plugin/setup_document/string_helper.h"
#include "tests/plugin/setup_document/text_samples.h"

#include <gtest/gtest.h>

#include <string>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

TEST(Utf8, GoesToWideTextAndBack) {
    for (const TextPair& c : SameTexts) {
        EXPECT_EQ(utf8ToWide(c.narrow), c.wide) << c.narrow;
        EXPECT_EQ(wideToUtf8(c.wide), c.narrow) << c.narrow;
    }
}

TEST(Utf8, GivesTheEmptyTextForInvalidInput) {
    for (const std::string& text : InvalidTexts)
        EXPECT_EQ(utf8ToWide(text), L"") << testing::PrintToString(text);
}

TEST(Utf8, EndsAtTheFirstZeroCharacter) {
    EXPECT_EQ(utf8ToWide(std::string("ab\0\xFF", 4)), L"ab");
    EXPECT_EQ(wideToUtf8(std::wstring(L"ab\0cd", 5)), "ab");
}

TEST(Utf8, ReplacesUnitsOfWideTextThatAreNoCharacters) {
    const std::wstring loneHigh{L'a', static_cast<wchar_t>(0xD800), L'b'};
    const std::wstring loneLow{static_cast<wchar_t>(0xDC00)};
    EXPECT_EQ(wideToUtf8(loneHigh),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(wideToUtf8(loneLow), "\xEF\xBF\xBD");
}

TEST(Utf8, JoinsASurrogatePair) {
    // 0xD83D 0xDE00: 0x10000 + 0x3D * 0x400 + 0x200 = 0x1F600.
    const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    EXPECT_EQ(wideToUtf8(pair), "\xF0\x9F\x98\x80");
}

TEST(HostString, IsEmptyWhenNullOrEmpty) {
    EXPECT_EQ(bstrToUtf8(nullptr), "");
    EXPECT_EQ(bstrToUtf8(L""), "");
    EXPECT_EQ(bstrToUtf8(L"\u00B5m"), "\xC2\xB5m");
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
