#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/framework/bridge.h"
#include "plugin/framework/message_codes.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"
#include "tests/plugin/framework/doubles/list_arguments.h"
#include "tests/plugin/framework/doubles/recording_control.h"
#include "tests/plugin/framework/doubles/text_result.h"

#include <gtest/gtest.h>

#include <memory>

namespace Meridax::VisualControls::Api {

/// A bridge over a recording control, and a host in memory to talk to it.
class BridgeFixture : public testing::Test {
protected:
    std::int32_t send(MessageCode code, const MessageArguments* arguments = nullptr) {
        return plugin->message(static_cast<std::uint32_t>(code), arguments, &result);
    }

    std::int32_t send(MessageCode code, const ListArguments& arguments) {
        return send(code, &arguments);
    }

    /// The status that a message throws; 0 when it throws none.
    std::uint32_t thrownBy(MessageCode code, const MessageArguments* arguments) {
        try {
            send(code, arguments);
            return 0;
        } catch (const Host::HostError& error) {
            return error.status;
        }
    }

    std::int32_t attach() {
        return send(MessageCode::Attach, {object(host.app()), object(host.control())});
    }

    Host::Ref<IMeridaxPlugin> makePlugin() {
        return VisualControlBridge::create(needs).offered<IMeridaxPlugin>();
    }

    ::Rotavue::HostKit::MemoryHost host;
    ControlRecord record;
    ControlMaker makeControl = [this] { return std::make_unique<RecordingControl>(record); };
    ClipboardSteps clipboard;
    LiveObjects liveObjects;
    BridgeNeeds needs{makeControl, clipboard, liveObjects};
    TextResult result;
    Host::Ref<IMeridaxPlugin> plugin = makePlugin();
};

}  // namespace Meridax::VisualControls::Api
