#pragma once

#include "plugin/framework/host/host_text.h"
#include "plugin/module/windows/platform_headers.h"

#include <limits>
#include <string>
#include <utility>

namespace Meridax::Host::Binary {

/// An owned text of the component model; null is the empty text.
class HostString {
public:
    HostString() noexcept = default;

    /// A copy of the text. Raises `HostError` 0x8007000E where there is no memory for it.
    explicit HostString(const std::wstring& text) {
        if (text.size() <= std::numeric_limits<UINT>::max() / sizeof(wchar_t))
            text_ = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
        if (text_ == nullptr) throw HostError(Status::OutOfMemory);
    }

    HostString(const HostString&) = delete;
    HostString& operator=(const HostString&) = delete;
    ~HostString() { ::SysFreeString(text_); }

    /// The text, borrowed.
    BSTR get() const noexcept { return text_; }

    /// Where a call puts a text, or frees this one and puts another.
    BSTR* put() noexcept { return &text_; }

    /// Hands the text to the caller and leaves this one empty.
    [[nodiscard]] BSTR detach() noexcept { return std::exchange(text_, nullptr); }

    /// A copy, with every character that the text holds. Raises `HostError` 0x8007000E where there
    /// is no memory for it.
    std::wstring copy() const { return copyOf(text_); }

    static std::wstring copyOf(BSTR text) {
        if (text == nullptr) return {};
        return madeText([text] { return std::wstring(text, ::SysStringLen(text)); });
    }

private:
    BSTR text_ = nullptr;
};

}  // namespace Meridax::Host::Binary
