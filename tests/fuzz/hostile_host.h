#pragma once

#include "host_kit/loader/message_values.h"
#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/memory_host.h"
#include "host_kit/session/host_reader.h"
#include "host_kit/session/session.h"
#include "tests/fuzz/byte_source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Rotavue::Fuzz {

/// A host that does to one control whatever its bytes say: it plays the next step of a session,
/// sends messages of any code with any arguments in any order, has channels that make no sense,
/// fails, answers null, sends messages from inside the plug-in's calls, and lets go of the control
/// in the middle of one.
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
    void describeUsualHost();
    void onCall(HostKit::Operation operation) override;
    void step();

    void playNext();
    void play(const HostKit::MessageStep& message);
    void play(const HostKit::PatchStep& patch);
    void play(const HostKit::WidgetStep& widget);
    void play(const HostKit::FailStep& fail);
    void play(const HostKit::ReleaseStep& release);

    void sendAny();
    void attach();
    void send(std::uint32_t code, const HostKit::MessageList& list);
    void sendList(std::uint32_t code, const HostKit::MessageList* list);
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
    const HostKit::Session* session_;  ///< null for a host that is made up here
    std::size_t next_ = 0;             ///< step of the session
    HostKit::Module module_;
    HostKit::MemoryHost host_;
    HostKit::HostReader reader_;
    HostKit::MemoryClipboard clipboard_;
    Meridax::Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_;
    std::size_t calls_ = 0;  ///< of the plug-in, in the whole run
    int depth_ = 0;          ///< messages that are under way within each other
};

}  // namespace Rotavue::Fuzz
