#pragma once

#include "host_kit/namespaces.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/plugin_tables.h"

#include <cstdint>

namespace Rotavue::HostKit {

/// A control of the component model as an object of ours: the messages of a host kit go to it as
/// variants, and what it writes comes back.
///
/// What a message puts on the system clipboard is told to `clipboard`, too, where there is one.
class ComControl final : public Api::IMeridaxPlugin {
public:
    ComControl(Host::Binary::ComRef<Api::Binary::IMeridaxPlugin> plugin,
               const Host::Ref<Api::IHostClipboard>& clipboard)
        : plugin_(std::move(plugin)), clipboard_(clipboard) {}

    void retain() noexcept override { ++references_; }
    void release() noexcept override;
    void* offer(const Host::Guid& interfaceId) override;

    /// `arguments` is a `MessageList` and `result` a `MessageAnswer`, or null.
    std::int32_t message(std::uint32_t code, const Api::MessageArguments* arguments,
                         Api::MessageResult* result) override;

private:
    std::int32_t send(std::uint32_t code, const Api::MessageArguments* arguments,
                      Api::MessageResult* result);

    Host::Binary::ComRef<Api::Binary::IMeridaxPlugin> plugin_;
    const Host::Ref<Api::IHostClipboard>&
        clipboard_;  ///< the module's, which outlives its controls
    std::int32_t references_ = 0;
};

}  // namespace Rotavue::HostKit
