#pragma once

#include "host_kit/memory/memory_object.h"
#include "plugin/framework/host/data/host_properties.h"

#include <functional>
#include <map>

namespace Rotavue::HostKit {

/// The properties of a channel or a group.
class MemoryProperties final : public LastingObject<Host::IHostProperties> {
public:
    /// Finds the texts as they are now; null where there are none.
    using Source = std::function<const std::map<std::wstring, std::wstring>*()>;

    MemoryProperties(MemoryHost& host, Source source);

    std::string name() const override { return "properties"; }

    std::wstring getValue(const std::wstring& propertyName) override;

private:
    Source source_;
};

}  // namespace Rotavue::HostKit
