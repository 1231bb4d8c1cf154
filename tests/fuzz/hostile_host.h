#pragma once

#include "host_kit/loader/message_values.h"
#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/memory_host.h"
#include "tests/fuzz/byte_source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Rotavue::Fuzz {

/// A host that does to one control whatever its bytes say: it sends messages of any code with any
/// arguments in any order, has channels that make no sense, fails, answers null, sends messages
/// from inside the plug-in's calls, and lets go of the control in the middle of one.
class HostileHost final : HostKit::CallWatcher {
public:
    explicit HostileHost(ByteSource bytes);
    HostileHost(const HostileHost&) = delete;
    HostileHost& operator=(const HostileHost&) = delete;
    ~HostileHost() override;

    /// Goes on until the bytes end.
    void run();

    /// References to the host's objects that are held although the control is gone.
    std::int64_t leftBehind();

private:
    void onCall(HostKit::Operation operation) override;
    void step();
    void sendAny();
    void send(std::uint32_t code, const HostKit::MessageList& list);
    HostKit::MessageList listFor(std::string_view shape);
    HostKit::MessageValue valueFor(char kind);
    HostKit::MessageValue anyValue();

    void changeFacts();
    void changeChannel();
    void changeProperties();
    void changeValues();
    void changeAssignment();
    void changeSetup();
    void changeWidget();
    void changeCanvas();
    void planFault();
    void planNulls();
    void replaceControl();
    std::string channelId();
    HostKit::ChannelItem channelItem();

    ByteSource bytes_;
    HostKit::Module module_;
    HostKit::MemoryHost host_;
    HostKit::MemoryClipboard clipboard_;
    Meridax::Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_;
    std::size_t calls_ = 0;  ///< of the plug-in, in the whole run
    int depth_ = 0;          ///< messages that are under way within each other
};

}  // namespace Rotavue::Fuzz
