#pragma once

#include "host_kit/memory/channel_table.h"
#include "host_kit/namespaces.h"
#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/data/host_app.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// One host as plain records. The objects of a `MemoryHost` keep no copy of any of it: a change is
/// seen by the next call, also of an object that the plug-in has held for long.
namespace Rotavue::HostKit {

/// What the user answers to the in-place editor.
struct EditAnswer {
    bool accepted = false;
    std::wstring text;  ///< handed back, accepted or not
};

struct HostFacts {
    Host::HostVersion version{4, 0, 0};
    bool acquiring = true;
    bool wholeDataset = false;
    std::int32_t blockSize = 1000;  ///< samples
    double sampleRate = 10000.0;    ///< Hz, of the master clock
    Host::DataPosition currentPosition;
    Host::DataPosition firstPosition;
    Host::DataPosition lastPosition;
    std::int32_t acquiredSampleCount = 0;
    EditAnswer editText;
};

/// A channel by its id; nothing stands for a null item.
using ChannelItem = std::optional<std::string>;

struct GroupDescription {
    std::vector<ChannelItem> channels;  ///< item 0 the orbit channel, item 1 the tacho channel
    std::map<std::wstring, std::wstring> properties;
};

struct SlotDescription {
    std::int32_t kind = 0;  ///< 1 holds channel groups
};

struct Assignment {
    std::vector<ChannelItem> channels;
    std::vector<GroupDescription> groups;
    std::vector<SlotDescription> slots;
};

/// The fixed text metrics of the canvas, in pixels.
struct CanvasMetrics {
    std::int32_t fontHeight = 16;  ///< the height that was set last
    std::int32_t charWidth = 8;    ///< of every code point, whatever the font's height
    std::int32_t textHeight = 16;  ///< likewise
};

struct PanelDescription {
    std::set<std::wstring> hidden;  ///< widgets that `FindControl` answers with null
};

struct HostDescription {
    HostFacts host;
    ChannelTable channels;
    Assignment assigned;
    CanvasMetrics canvas;
    std::map<std::wstring, std::wstring> setup;  ///< what the setup node holds
    PanelDescription panel;
};

}  // namespace Rotavue::HostKit
