#pragma once

#include "plugin/framework/host/ref.h"
#include "plugin/framework/platform.h"
#include "plugin/framework/plugin_interfaces.h"

namespace Meridax::VisualControls::Rotavue {

/// The clipboard of a platform where it belongs to the program with the windows: blocks are plain
/// memory, and the text goes to the clipboard that the host has supplied, or nowhere.
class SuppliedClipboard final : public Api::SystemClipboard {
public:
    /// The host's clipboard from now on; null for none.
    void supply(Host::Ref<Api::IHostClipboard> clipboard) noexcept;

    void open() noexcept override {}
    void empty() noexcept override {}
    Block allocate(std::size_t bytes) noexcept override;
    void* lock(Block block) noexcept override { return block; }
    void unlock(Block /*block*/) noexcept override {}
    void setUnicodeText(Block block) noexcept override;
    void close() noexcept override {}
    void free(Block block) noexcept override;

private:
    Host::Ref<Api::IHostClipboard> clipboard_;
};

}  // namespace Meridax::VisualControls::Rotavue
