#include "workbench/paint/text_face.h"

#include <gtest/gtest.h>

#include <limits>

namespace Rotavue::Workbench {
namespace {

TEST(TextFace, HoldsAnyHeightBetweenOnePixelAndTheTallest) {
    const int tallest = TextFace(512).lineHeight();
    EXPECT_EQ(TextFace(std::numeric_limits<std::int32_t>::max()).lineHeight(), tallest);
    EXPECT_EQ(TextFace(std::numeric_limits<std::int32_t>::min()).lineHeight(), tallest);
    EXPECT_EQ(TextFace(0).lineHeight(), TextFace(1).lineHeight());
}

TEST(TextFace, ALineHoldsTheLettersAndWhatHangsBelow) {
    const TextFace face(20);
    EXPECT_GT(face.ascent(), 14);
    EXPECT_GT(face.lineHeight(), face.ascent());
    EXPECT_LT(face.lineHeight(), 30);
}

TEST(HostText, KeepsLettersOfAllPlanes) {
    EXPECT_EQ(toQString(L"50 \u00b5m \u03c9"), QString::fromUtf8("50 \u00b5m \u03c9"));
    EXPECT_EQ(toQString(L"\U0001F600"), QString::fromUtf8("\U0001F600"));
}

TEST(HostText, IsOneLine) {
    EXPECT_EQ(toQString(L"a\nb\tc\x7f"), "a b c ");
}

TEST(HostText, WhatIsNoCharacterBecomesTheReplacement) {
    const std::wstring text{static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000),
                            static_cast<wchar_t>(-1)};
    EXPECT_EQ(toQString(text), QString(3, QChar(0xFFFD)));
}

TEST(HostText, EndsAtTheLongestLength) {
    EXPECT_EQ(toQString(std::wstring(1'000'000, L'x')).size(), 4096);
}

}  // namespace
}  // namespace Rotavue::Workbench
