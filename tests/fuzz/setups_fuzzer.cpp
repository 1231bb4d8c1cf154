#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_host.h"
#include "host_kit/memory/utf8.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/framework/message_codes.h"
#include "plugin/framework/unicode.h"
#include "tests/fuzz/memory_file.h"
#include "workbench/recording/recording_error.h"
#include "workbench/setup/setup_file.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>

namespace {

using namespace Rotavue;
using Meridax::VisualControls::Api::MessageCode;
using Settings = std::map<std::wstring, std::wstring>;

/// What a host answers in one message before it fails. A display time of years has millions of
/// places read, which is bounded, but takes a minute under the sanitizers.
constexpr std::size_t MostCalls = 10'000;

/// One control that shows a small orbit, for all inputs.
class ShownControl final : HostKit::CallWatcher {
public:
    ShownControl() {
        host_.gate.watch(this, dataCalls());
        HostKit::ChannelDescription& orbit = host_.description.channels["orbit"];
        orbit.sampleCount = 16;
        orbit.sampleRate = 1000.0;
        orbit.values[4] = {1, 2, 3, 4, 5, 6, 7, 8, 8, 7, 6, 5, 4, 3, 2, 1};
        orbit.values[5] = {4, 3, 2, 1, 1, 2, 3, 4, 4, 3, 2, 1, 1, 2, 3, 4};
        host_.description.host.sampleRate = 1000.0;
        host_.description.assigned.groups = {{{"orbit"}, {}}};
        send(MessageCode::Attach, {host_.app(), host_.control()});
        send(MessageCode::ChannelsChanged, {0});
    }

    void load(const Settings& settings) {
        host_.description.setup = settings;
        send(MessageCode::Setup, {host_.document(), host_.node(), 0});
    }

    const Settings& save() {
        host_.description.setup.clear();
        send(MessageCode::Setup, {host_.document(), host_.node(), 0xFFFF});
        return host_.description.setup;
    }

    void draw() { send(MessageCode::Draw, {host_.canvas(), 0, 0, 400, 300, 0, 0, 0}); }
    void copy() { send(MessageCode::Copy, {}); }

private:
    static HostKit::CallGroups dataCalls() {
        HostKit::CallGroups groups;
        groups.set(static_cast<std::size_t>(HostKit::CallGroup::Data));
        return groups;
    }

    void onCall(HostKit::Operation) override {
        if (++calls_ > MostCalls) {
            throw Meridax::Host::HostError(Meridax::Host::Status::Unspecified);
        }
    }

    void send(MessageCode code, const HostKit::MessageList& list) {
        calls_ = 0;
        try {
            control_->message(static_cast<std::uint32_t>(code), &list, nullptr);
        } catch (const std::exception&) {
            // A setup that is refused leaves the control with what it has read.
        }
    }

    HostKit::Module module_{"linked"};
    HostKit::MemoryHost host_;
    std::size_t calls_ = 0;  ///< of the message that is under way
    Meridax::Host::Ref<Meridax::VisualControls::Api::IMeridaxPlugin> control_ =
        module_.makeControl();
};

std::wstring wide(std::string_view text) {
    return Meridax::VisualControls::Api::wideFromUtf8(HostKit::wellFormed(std::string(text)));
}

/// Lines of the form KEY=TEXT.
Settings settingsIn(std::string_view lines) {
    Settings settings;
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find('\n'), lines.size());
        const std::string_view line = lines.substr(0, end);
        lines.remove_prefix(std::min(end + 1, lines.size()));
        const std::size_t sign = std::min(line.find('='), line.size());
        const std::string_view text = line.substr(std::min(sign + 1, line.size()));
        settings[wide(line.substr(0, sign))] = wide(text);
    }
    return settings;
}

/// An element of an XML file named after each key.
Settings settingsInFile(std::string_view xml) {
    Settings settings;
    const Fuzz::MemoryFile file(xml);
    const Workbench::SetupEntries entries = Workbench::readSetupFile(file.path());
    for (const Workbench::SetupEntry& entry : entries)
        settings[wide(entry.key)] = wide(entry.text);
    const Fuzz::MemoryFile again(Workbench::setupXml(entries));
    if (Workbench::readSetupFile(again.path()).size() != entries.size()) std::abort();
    return settings;
}

/// What was saved once is loaded and saved without a change from then on.
void show(const Settings& settings) {
    static ShownControl control;
    control.load(settings);
    control.draw();
    control.copy();
    const Settings saved = control.save();
    control.load(saved);
    if (control.save() != saved) std::abort();
}

}  // namespace

/// A setup: an XML file where the input begins with an angle bracket, else the control's own keys
/// and texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = Fuzz::textOf(data, size);
    try {
        show(input.starts_with('<') ? settingsInFile(input) : settingsIn(input));
    } catch (const Workbench::RecordingError&) {
    }
    return 0;
}
