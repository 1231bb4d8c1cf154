#pragma once

#include "host_kit/memory/call.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// A host that comes back into the plug-in from inside a call: once, at the first call of one
/// operation. It writes down the calls that it hears of.
struct ReentrantHost : ::Rotavue::HostKit::CallWatcher {
    ReentrantHost(::Rotavue::HostKit::Operation at, std::function<void()> act)
        : at_(at), act_(std::move(act)) {}

    void onCall(::Rotavue::HostKit::Operation operation) override {
        if (operation == at_) std::exchange(act_, [] {})();
    }

    void onReturn(const ::Rotavue::HostKit::Call& call) override { lines.push_back(toText(call)); }

    std::vector<std::string> lines;

private:
    ::Rotavue::HostKit::Operation at_;
    std::function<void()> act_;
};

}  // namespace Meridax::VisualControls::Rotavue
