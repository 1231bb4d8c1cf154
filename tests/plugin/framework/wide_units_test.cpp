#include "plugin/framework/clipboard_copy.h"
#include "plugin/framework/unicode.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"

#include <gtest/gtest.h>

#include <stdexcept>

// Numbers beyond the last code point are in a wide text only where its units have more than 16
// bits.

namespace Meridax::VisualControls::Api {
namespace {

class NumberBeyondTheLastCodePoint : public testing::TestWithParam<std::uint32_t> {
protected:
    const std::wstring number_ = std::wstring(1, static_cast<wchar_t>(GetParam()));
};

TEST_P(NumberBeyondTheLastCodePoint, BecomesTheReplacementCharacterInUtf16) {
    EXPECT_EQ(utf16FromWide(L"a" + number_ + L"b"), u"a\uFFFDb");
}

TEST_P(NumberBeyondTheLastCodePoint, IsRefusedInUtf8) {
    EXPECT_THROW(utf8FromWide(number_), std::range_error);
}

TEST_P(NumberBeyondTheLastCodePoint, IsReplacedOnTheClipboard) {
    ClipboardSteps clipboard;
    copyToClipboard(clipboard, number_);
    EXPECT_EQ(clipboard.units, std::u16string(u"\uFFFD\0", 2));
}

TEST(ClipboardCopy, LoneSurrogatesAreReplaced) {
    ClipboardSteps clipboard;
    const std::wstring harmful{wchar_t{0xD800}, L'a', wchar_t{0xDC00}};
    copyToClipboard(clipboard, harmful);
    EXPECT_EQ(clipboard.units, std::u16string(u"\uFFFDa\uFFFD\0", 4));
}

INSTANTIATE_TEST_SUITE_P(Borders, NumberBeyondTheLastCodePoint,
                         testing::Values(0x110000U, 0x7FFFFFFFU, 0xFFFFFFFFU));

}  // namespace
}  // namespace Meridax::VisualControls::Api
