#pragma once

#include "plugin/framework/plugin_interfaces.h"

#include <functional>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

/// The clipboard of a host, which keeps every text that came.
class HostClipboard final : public Api::IHostClipboard {
public:
    void retain() noexcept override { ++count; }
    void release() noexcept override { --count; }
    void* offer(const Host::Guid& /*interfaceId*/) override { return nullptr; }

    void putText(const std::wstring& text) override {
        texts.push_back(text);
        if (during) during();
    }

    int count = 0;
    std::vector<std::wstring> texts;
    std::function<void()> during;  ///< runs inside `putText`
};

}  // namespace Meridax::VisualControls::Rotavue
