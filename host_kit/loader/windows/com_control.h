#pragma once

#include "host_kit/loader/windows/surroundings.h"
#include "host_kit/namespaces.h"
#include "plugin/framework/plugin_interfaces.h"
#include "plugin/module/windows/interfaces/com_ref.h"
#include "plugin/module/windows/interfaces/plugin_tables.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace Rotavue::HostKit {

/// A control of the component model as an object of ours: the messages of a host kit go to it as
/// variants, and what it writes comes back.
///
/// What a message puts on the system clipboard is told to the one of the surroundings, too, where
/// there is one.
class ComControl final : public Api::IMeridaxPlugin {
public:
    ComControl(Host::Binary::ComRef<Api::Binary::IMeridaxPlugin> plugin,
               std::shared_ptr<const Surroundings> surroundings)
        : surroundings_(std::move(surroundings)), plugin_(std::move(plugin)) {}

    void retain() noexcept override { ++references_; }
    void release() noexcept override;
    void* offer(const Host::Guid& interfaceId) override;

    /// `arguments` is a `MessageList` and `result` a `MessageAnswer`, or null.
    std::int32_t message(std::uint32_t code, const Api::MessageArguments* arguments,
                         Api::MessageResult* result) override;

private:
    std::int32_t send(std::uint32_t code, const Api::MessageArguments* arguments,
                      Api::MessageResult* result);

    std::shared_ptr<const Surroundings> surroundings_;  ///< goes after the control
    Host::Binary::ComRef<Api::Binary::IMeridaxPlugin> plugin_;
    std::int32_t references_ = 0;
};

}  // namespace Rotavue::HostKit
