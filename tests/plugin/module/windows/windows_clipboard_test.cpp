#include "plugin/module/windows/windows_clipboard.h"

#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

#include <cstring>

namespace Meridax::VisualControls::Rotavue {
namespace {

TEST(WindowsClipboardTest, BlockIsMovableMemoryOfThePlatform) {
    WindowsClipboard clipboard;
    const auto block = clipboard.allocate(6);
    ASSERT_NE(block, nullptr);
    EXPECT_GE(::GlobalSize(block), 6U);
    void* const memory = clipboard.lock(block);
    ASSERT_NE(memory, nullptr);
    EXPECT_NE(memory, block);  // movable: the block is a handle
    std::memcpy(memory, L"ab", 6);
    clipboard.unlock(block);
    EXPECT_STREQ(static_cast<const wchar_t*>(clipboard.lock(block)), L"ab");
    clipboard.unlock(block);
    clipboard.free(block);
}

TEST(WindowsClipboardTest, TextIsThereUntilTheClipboardIsEmptied) {
    WindowsClipboard clipboard;
    clipboard.open();
    clipboard.empty();
    const auto block = clipboard.allocate(4);
    std::memcpy(clipboard.lock(block), L"a", 4);
    clipboard.unlock(block);
    clipboard.setUnicodeText(block);
    EXPECT_TRUE(::IsClipboardFormatAvailable(13));
    clipboard.empty();
    EXPECT_FALSE(::IsClipboardFormatAvailable(13));
    clipboard.close();
    EXPECT_FALSE(::CloseClipboard());  // it is closed
}

TEST(WindowsClipboardTest, EveryStepCopesWithoutABlock) {
    WindowsClipboard clipboard;
    clipboard.open();
    EXPECT_EQ(clipboard.lock(nullptr), nullptr);
    clipboard.unlock(nullptr);
    clipboard.setUnicodeText(nullptr);
    clipboard.close();
    clipboard.free(nullptr);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
