#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/plugin_interfaces.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace Rotavue::HostKit {

/// A clipboard that keeps the text in memory.
class MemoryClipboard final : public Api::IHostClipboard {
public:
    /// The text that was put last; nothing where none was.
    const std::optional<std::wstring>& text() const { return text_; }

    /// The same, and the clipboard is as if none had been put.
    std::optional<std::wstring> takeText() { return std::exchange(text_, std::nullopt); }

    /// References that are held from outside.
    std::int32_t references() const { return references_; }

    void retain() noexcept override { ++references_; }
    void release() noexcept override { --references_; }
    void* offer(const Host::Guid& interfaceId) override;
    void putText(const std::wstring& text) override { text_ = text; }

private:
    std::optional<std::wstring> text_;
    std::int32_t references_ = 0;
};

}  // namespace Rotavue::HostKit
