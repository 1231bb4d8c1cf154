#pragma once

#include "plugin/framework/platform.h"

namespace Meridax::VisualControls::Rotavue {

/// The platform's clipboard: each step is the platform's call of that name.
class WindowsClipboard final : public Api::SystemClipboard {
public:
    void open() noexcept override;
    void empty() noexcept override;
    Block allocate(std::size_t bytes) noexcept override;
    void* lock(Block block) noexcept override;
    void unlock(Block block) noexcept override;
    void setUnicodeText(Block block) noexcept override;
    void close() noexcept override;
    void free(Block block) noexcept override;
};

}  // namespace Meridax::VisualControls::Rotavue
