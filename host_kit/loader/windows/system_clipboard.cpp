#include "host_kit/loader/windows/system_clipboard.h"

#include "plugin/module/windows/platform_headers.h"

#include <algorithm>

namespace Rotavue::HostKit::SystemClipboard {

namespace {

/// The clipboard, open for the length of a scope.
class Opened {
public:
    Opened() : opened_(::OpenClipboard(nullptr) != FALSE) {}
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;
    ~Opened() {
        if (opened_) ::CloseClipboard();
    }

    explicit operator bool() const noexcept { return opened_; }

private:
    bool opened_;
};

/// A block of memory that stays where it is for the length of a scope.
class Locked {
public:
    explicit Locked(HANDLE block) : block_(block), data_(::GlobalLock(block)) {}
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() {
        if (data_ != nullptr) ::GlobalUnlock(block_);
    }

    /// Up to the terminator, or the end of the block where there is none.
    std::wstring text() const {
        const auto* first = static_cast<const wchar_t*>(data_);
        const wchar_t* last = first + ::GlobalSize(block_) / sizeof(wchar_t);
        return {first, std::find(first, last, L'\0')};
    }

    explicit operator bool() const noexcept { return data_ != nullptr; }

private:
    HANDLE block_;
    void* data_;
};

}  // namespace

std::uint32_t changes() {
    return ::GetClipboardSequenceNumber();
}

std::optional<std::wstring> text() {
    const Opened opened;
    if (!opened) return std::nullopt;
    const Locked block(::GetClipboardData(CF_UNICODETEXT));
    if (!block) return std::nullopt;
    return block.text();
}

}  // namespace Rotavue::HostKit::SystemClipboard
