#pragma once

#include "host_kit/memory/memory_app.h"
#include "host_kit/memory/memory_canvas.h"
#include "host_kit/memory/memory_channel.h"
#include "host_kit/memory/memory_collections.h"
#include "host_kit/memory/memory_control.h"
#include "host_kit/memory/memory_document.h"
#include "host_kit/memory/memory_panel.h"
#include "host_kit/memory/memory_slots.h"

#include <map>
#include <memory>
#include <string>

namespace Rotavue::HostKit {

/// The objects of one memory host, each there once.
class HostObjects {
public:
    explicit HostObjects(MemoryHost& host);

    MemoryChannel& channel(const std::string& id);
    MemoryGroup& group(std::int32_t index);
    MemorySlot& slot(std::int32_t index);
    MemoryBareWidget& bareWidget(const std::wstring& name);

    MemoryApp app;
    MemoryData data;
    MemoryControl control;
    MemoryChannels channels;
    MemoryGroups groups;
    MemorySlots slots;
    MemoryCanvas canvas;
    MemoryPanel panel;
    MemoryXmlFactory xmlFactory;
    std::shared_ptr<MemoryNode> node;
    std::shared_ptr<MemoryDocument> document;

private:
    MemoryHost& host_;
    std::map<std::string, std::unique_ptr<MemoryChannel>> channelById_;
    std::map<std::int32_t, std::unique_ptr<MemoryGroup>> groupByIndex_;
    std::map<std::int32_t, std::unique_ptr<MemorySlot>> slotByIndex_;
    std::map<std::wstring, std::shared_ptr<MemoryBareWidget>> bareWidgetByName_;
};

}  // namespace Rotavue::HostKit
