#include "plugin/framework/clipboard_copy.h"

#include "tests/plugin/framework/doubles/bridge_fixture.h"

#include <gtest/gtest.h>

namespace Meridax::VisualControls::Api {
namespace {

using Steps = std::vector<std::string>;

Steps allSteps(const std::string& allocation) {
    return {"open", "empty", allocation, "lock", "unlock", "setUnicodeText", "close", "free"};
}

TEST(ClipboardCopy, MakesItsStepsInTheirOrderAndFreesTheBlockLast) {
    ClipboardSteps clipboard;
    copyToClipboard(clipboard, L"X\tY");
    EXPECT_EQ(clipboard.steps, allSteps("allocate 8"));  // (3 + 1) * 2
    EXPECT_EQ(clipboard.units, std::u16string(u"X\tY\0", 4));
}

TEST(ClipboardCopy, EmptyTextIsATerminatorAlone) {
    ClipboardSteps clipboard;
    copyToClipboard(clipboard, L"");
    EXPECT_EQ(clipboard.steps, allSteps("allocate 2"));
    EXPECT_EQ(clipboard.units, std::u16string(1, u'\0'));
}

TEST(ClipboardCopy, TextAfterAnEmbeddedZeroIsCutOff) {
    ClipboardSteps clipboard;
    copyToClipboard(clipboard, std::wstring_view(L"ab\0cd", 5));
    EXPECT_EQ(clipboard.steps[2], "allocate 6");
    EXPECT_EQ(clipboard.units, std::u16string(u"ab\0", 3));
}

TEST(ClipboardCopy, CharacterBeyondSixteenBitsTakesTwoUnits) {
    ClipboardSteps clipboard;
    copyToClipboard(clipboard, L"\U0001F600");
    EXPECT_EQ(clipboard.steps[2], "allocate 6");
    EXPECT_EQ(clipboard.units, std::u16string(u"\U0001F600\0", 3));
}

TEST(ClipboardCopy, NoBlockLeavesOutTheTextAndNoStep) {
    ClipboardSteps clipboard;
    clipboard.hasNoBlock = true;
    copyToClipboard(clipboard, L"ab");
    EXPECT_EQ(clipboard.steps, allSteps("allocate 6"));
    EXPECT_EQ(clipboard.units, u"???");
}

TEST(ClipboardCopy, NoMemoryBehindTheBlockLeavesOutTheTextAndNoStep) {
    ClipboardSteps clipboard;
    clipboard.hasNoMemory = true;
    copyToClipboard(clipboard, L"ab");
    EXPECT_EQ(clipboard.steps, allSteps("allocate 6"));
    EXPECT_EQ(clipboard.units, u"???");
}

class CopyMessage : public BridgeFixture {};

TEST_F(CopyMessage, CopiesTheTextOfTheControl) {
    record.text = L"Shaft (um)\r\n";
    EXPECT_EQ(send(MessageCode::Copy), 0);
    EXPECT_EQ(result.text, "none");
    EXPECT_EQ(clipboard.units, std::u16string(u"Shaft (um)\r\n\0", 13));
}

TEST_F(CopyMessage, DoesNotAskWhetherThereIsSomethingToCopy) {
    record.canCopy = false;
    send(MessageCode::Copy);
    EXPECT_EQ(record.calls, std::vector<std::string>{"clipboardText"});
    EXPECT_EQ(clipboard.units, std::u16string(1, u'\0'));
}

TEST_F(CopyMessage, FailedTextTouchesNoClipboard) {
    record.during = [] { Host::raiseNullObject(); };
    EXPECT_EQ(thrownBy(MessageCode::Copy, nullptr), 0x80004003U);
    EXPECT_TRUE(clipboard.steps.empty());
}

}  // namespace
}  // namespace Meridax::VisualControls::Api
