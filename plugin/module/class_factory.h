#pragma once

#include "plugin/framework/bridge.h"
#include "plugin/framework/plugin_interfaces.h"

#include <atomic>
#include <cstdint>
#include <functional>

namespace Meridax::VisualControls::Rotavue {

/// Makes the module's control objects. The module has one factory for as long as it is loaded; its
/// references are not its life, but a held one counts as a living object of the module.
class ClassFactory final : public Api::IClassFactory, public Api::IModuleServices {
public:
    /// Takes the clipboard that a host supplies.
    using ClipboardTaker = std::function<void(Host::Ref<Api::IHostClipboard>)>;

    ClassFactory(const Api::BridgeNeeds& needs, ClipboardTaker takeClipboard);

    void retain() noexcept override { needs_.liveObjects.enter(); }
    void release() noexcept override { needs_.liveObjects.leave(); }
    void* offer(const Host::Guid& interfaceId) override;

    std::int32_t createInstance(Host::IHostObject* outer, const Host::Guid& interfaceId,
                                void** object) noexcept override;
    std::int32_t lockServer(bool lock) noexcept override;
    void supplyClipboard(Api::IHostClipboard* clipboard) noexcept override;

    /// True while a caller holds the module in memory with `lockServer`.
    bool isLocked() const noexcept { return locks_ > 0; }

private:
    Api::BridgeNeeds needs_;
    ClipboardTaker takeClipboard_;
    std::atomic<std::int32_t> locks_{0};
};

}  // namespace Meridax::VisualControls::Rotavue
