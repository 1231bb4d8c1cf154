#include "plugin/setup_document/string_helper.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

struct TextPair {
    std::string narrow;
    std::wstring wide;
};

// One to four bytes, each at the two ends of its range, by the bit patterns of UTF-8.
const std::vector<TextPair> SameTexts = {
    {"", L""},
    {"Shaft", L"Shaft"},
    {"\x7F", L"\u007F"},
    {"\xC2\x80", L"\u0080"},
    {"\xC2\xB5m", L"\u00B5m"},
    {"\xDF\xBF", L"\u07FF"},
    {"\xE0\xA0\x80", L"\u0800"},
    {"\xEF\xBF\xBF", L"\uFFFF"},
    {"\xF0\x90\x80\x80", L"\U00010000"},
    {"\xF4\x8F\xBF\xBF", L"\U0010FFFF"},
};

// A lone byte, a stray and a missing continuation, overlong forms, a surrogate, too large a number.
const std::vector<std::string> InvalidTexts = {
    "\xFF",
    "\x80",
    "a\xC3",
    "\xC3(",
    "\xC0\x80",
    "\xE0\x9F\xBF",
    "\xF0\x8F\xBF\xBF",
    "\xED\xA0\x80",
    "\xF4\x90\x80\x80",
    "\xF8\x88\x80\x80\x80",
    "valid and then \xE2\x82",
};

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

TEST(HostPage, CarriesEveryCharacterBothWays) {
    for (const TextPair& c : SameTexts) {
        EXPECT_EQ(textToHost(c.narrow), c.wide) << c.narrow;
        EXPECT_EQ(hostToText(c.wide), c.narrow) << c.narrow;
    }
}

TEST(HostPage, KeepsWhatIsValidBesideAByteThatIsNot) {
    EXPECT_EQ(textToHost("a\xFFz"), L"a\uFFFDz");
    EXPECT_EQ(textToHost("\xC3(").size(), 2U);  // the cut-off lead byte and the bracket
    for (const std::string& text : InvalidTexts)
        EXPECT_NE(textToHost(text), L"") << testing::PrintToString(text);
}

}  // namespace
}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
