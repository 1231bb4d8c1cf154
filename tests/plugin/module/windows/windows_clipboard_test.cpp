#include "plugin/module/windows/windows_clipboard.h"

#include "plugin/framework/clipboard_copy.h"
#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

#include <cstring>
#include <semaphore>
#include <thread>

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

/// Notes the block that goes through it.
class NotedClipboard final : public Api::SystemClipboard {
public:
    void open() noexcept override { platform_.open(); }
    void empty() noexcept override { platform_.empty(); }
    Block allocate(std::size_t bytes) noexcept override {
        return block = platform_.allocate(bytes);
    }
    void* lock(Block locked) noexcept override { return platform_.lock(locked); }
    void unlock(Block locked) noexcept override { platform_.unlock(locked); }
    void setUnicodeText(Block text) noexcept override { platform_.setUnicodeText(text); }
    void close() noexcept override { platform_.close(); }
    void free(Block freed) noexcept override { platform_.free(freed); }

    Block block = nullptr;

private:
    WindowsClipboard platform_;
};

TEST(WindowsClipboardTest, BlockIsFreedWhereAnotherThreadHoldsTheClipboard) {
    std::binary_semaphore held(0);
    std::binary_semaphore ended(0);
    std::thread other([&] {
        HWND window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                        nullptr, nullptr);
        EXPECT_TRUE(::OpenClipboard(window));
        held.release();
        ended.acquire();
        EXPECT_TRUE(::CloseClipboard());  // nobody else has closed it
        ::DestroyWindow(window);
    });
    held.acquire();
    NotedClipboard clipboard;
    Api::copyToClipboard(clipboard, L"refused");
    EXPECT_NE(clipboard.block, nullptr);
    EXPECT_EQ(::GlobalFlags(clipboard.block), static_cast<UINT>(GMEM_INVALID_HANDLE));
    ended.release();
    other.join();
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
