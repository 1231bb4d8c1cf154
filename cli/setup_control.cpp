#include "cli/setup_control.h"

#include "workbench/recording/recording_error.h"
#include "workbench/setup/setup_rules.h"

#include <algorithm>

namespace Rotavue::Cli {

namespace {

using Workbench::SetupEntries;
using Workbench::SetupEntry;

/// The keys and texts that go between a control and its document while it is watched.
class Exchange final : public HostKit::CallWatcher {
public:
    explicit Exchange(HostKit::MemoryHost& host) : host_(host) {
        host_.gate.watch(this, HostKit::groups({HostKit::CallGroup::Setup}));
    }
    ~Exchange() override { host_.gate.watch(nullptr, {}); }

    /// Both operations have the node, the key and a text as their first arguments.
    void onReturn(const HostKit::Call& call) override {
        const bool written = call.operation == HostKit::operation("IHostXmlDocument.WriteValue");
        const bool read = call.operation == HostKit::operation("IHostXmlDocument.ReadValue");
        if (written || read) entries.push_back({textOf(call, 1), textOf(call, 2)});
    }

    SetupEntries entries;

private:
    static std::string textOf(const HostKit::Call& call, std::size_t argument) {
        return std::get<std::string>(call.arguments.at(argument).value);
    }

    HostKit::MemoryHost& host_;
};

std::wstring wide(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

/// A control stops at the key that it asked for last.
[[noreturn]] void refuse(const std::filesystem::path& file, const SetupEntries& entries,
                         const std::string& lastKey, const std::string& why) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const SetupEntry& entry) { return entry.key == lastKey; });
    if (found == entries.end()) throw std::runtime_error(file.string() + ": " + why);
    throw Workbench::RecordingError({file, found->line},
                                    Workbench::inQuotes(found->text) + " for " +
                                        Workbench::inQuotes(lastKey) + " (" + why + ')',
                                    Workbench::allowedTexts(lastKey));
}

}  // namespace

SetupControl::SetupControl(const std::optional<std::string>& module)
    : module_(HostKit::chooseModule(module)), control_(module_, host_) {}

SetupEntries SetupControl::save() {
    const Exchange exchange(host_);
    control_.save();
    return exchange.entries;
}

void SetupControl::load(const std::filesystem::path& file, const SetupEntries& entries) {
    const Exchange exchange(host_);
    try {
        control_.load(documentTexts(entries));
    } catch (const std::runtime_error& error) {
        const std::string last = exchange.entries.empty() ? "" : exchange.entries.back().key;
        refuse(file, entries, last, error.what());
    }
}

HostKit::DrivenControl::Settings documentTexts(const SetupEntries& entries) {
    HostKit::DrivenControl::Settings texts;
    for (const SetupEntry& entry : entries)
        texts[wide(entry.key)] = wide(entry.text);
    return texts;
}

}  // namespace Rotavue::Cli
