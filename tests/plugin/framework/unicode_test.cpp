#include "plugin/framework/unicode.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Meridax::VisualControls::Api {
namespace {

/// A wide text of units that a literal may not hold.
std::wstring wide(std::initializer_list<std::uint16_t> units) {
    std::wstring text;
    for (const std::uint16_t unit : units)
        text.push_back(static_cast<wchar_t>(unit));
    return text;
}

struct Pair {
    std::wstring wide;
    std::u16string utf16;
    std::string utf8;
};

class UnicodePairs : public testing::TestWithParam<Pair> {};

TEST_P(UnicodePairs, EveryFormBecomesEveryOther) {
    const Pair& pair = GetParam();
    EXPECT_EQ(utf16FromWide(pair.wide), pair.utf16);
    EXPECT_EQ(wideFromUtf16(pair.utf16), pair.wide);
    EXPECT_EQ(utf8FromWide(pair.wide), pair.utf8);
    EXPECT_EQ(wideFromUtf8(pair.utf8), pair.wide);
}

// The borders of one, two, three and four bytes, and of one and two 16-bit units.
INSTANTIATE_TEST_SUITE_P(Borders, UnicodePairs,
                         testing::Values(Pair{L"", u"", ""}, Pair{L"Orbit", u"Orbit", "Orbit"},
                                         Pair{wide({0x7F}), u"\u007F", "\x7F"},
                                         Pair{wide({0x80}), u"\u0080", "\xC2\x80"},
                                         Pair{L"\u00B5m", u"\u00B5m", "\xC2\xB5m"},
                                         Pair{wide({0x7FF}), u"\u07FF", "\xDF\xBF"},
                                         Pair{wide({0x800}), u"\u0800", "\xE0\xA0\x80"},
                                         Pair{wide({0xD7FF}), u"\uD7FF", "\xED\x9F\xBF"},
                                         Pair{wide({0xE000}), u"\uE000", "\xEE\x80\x80"},
                                         Pair{wide({0xFFFF}), u"\uFFFF", "\xEF\xBF\xBF"},
                                         Pair{L"\U00010000", u"\U00010000", "\xF0\x90\x80\x80"},
                                         Pair{L"\U0010FFFF", u"\U0010FFFF", "\xF4\x8F\xBF\xBF"}));

TEST(Unicode, PairOfSurrogatesInWideTextIsOneCodePoint) {
    EXPECT_EQ(utf16FromWide(wide({0xD83D, 0xDE00})), u"\U0001F600");
    EXPECT_EQ(utf8FromWide(wide({0xD83D, 0xDE00})), "\xF0\x9F\x98\x80");
}

class HarmfulWideText : public testing::TestWithParam<std::wstring> {};

TEST_P(HarmfulWideText, BecomesTheReplacementCharacterInUtf16) {
    EXPECT_EQ(utf16FromWide(L"a" + GetParam() + L"b"), u"a\uFFFDb");
}

TEST_P(HarmfulWideText, IsRefusedInUtf8) {
    EXPECT_THROW(utf8FromWide(GetParam()), std::range_error);
}

INSTANTIATE_TEST_SUITE_P(LoneSurrogates, HarmfulWideText,
                         testing::Values(wide({0xD800}), wide({0xDBFF}), wide({0xDC00}),
                                         wide({0xDFFF})));

TEST(Unicode, TwoHighSurrogatesAreTwoReplacements) {
    EXPECT_EQ(utf16FromWide(wide({0xD800, 0xD800})), u"\uFFFD\uFFFD");
}

TEST(Unicode, HighSurrogateAtTheEndIsReplaced) {
    EXPECT_EQ(wideFromUtf16(std::u16string{u'a', char16_t{0xD800}}), L"a\uFFFD");
}

class MalformedUtf8 : public testing::TestWithParam<std::string> {};

TEST_P(MalformedUtf8, IsRefused) {
    EXPECT_THROW(
        {
            try {
                wideFromUtf8(GetParam());
            } catch (const std::range_error& error) {
                EXPECT_STREQ(error.what(), "bad conversion");
                throw;
            }
        },
        std::range_error);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MalformedUtf8,
                         testing::Values("\x80", "\xFF",      // no lead
                                         "\xC2", "\xE2\x82",  // cut off
                                         "\xC2\x41",          // no continuation
                                         "\xC0\xAF", "\xE0\x9F\xBF",
                                         "\xF0\x8F\xBF\xBF",        // longer than needed
                                         "\xED\xA0\x80",            // a surrogate
                                         "\xF4\x90\x80\x80",        // beyond the last code point
                                         "\xF8\x88\x80\x80\x80"));  // five bytes

}  // namespace
}  // namespace Meridax::VisualControls::Api
