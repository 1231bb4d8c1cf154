#pragma once

#include "host_kit/memory/memory_host.h"
#include "plugin/orbit_graph/clipped_canvas.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

namespace HostKit = ::Rotavue::HostKit;

using Lines = std::vector<std::string>;

/// The lines that are calls of this operation, such as "IHostCanvas.LineTo".
inline Lines callsOf(std::string_view operation, const Lines& lines) {
    Lines result;
    std::ranges::copy_if(lines, std::back_inserter(result),
                         [&](const std::string& line) { return line.starts_with(operation); });
    return result;
}

/// The canvas of a host in memory: it turns what is drawn into lines such as
/// "IHostCanvas.LineTo(240, 150)". A character is 8 pixels wide and a line 16 high; the
/// font has a height of its own, 21.
class RecordingCanvas {
public:
    RecordingCanvas() {
        host.description.canvas.fontHeight = 21;
        host.record(HostKit::groups({HostKit::CallGroup::Draw}));
    }

    /// Also writes what is fetched and measured.
    void recordMeasures() {
        host.record(HostKit::groups({HostKit::CallGroup::Draw, HostKit::CallGroup::Measure}));
    }

    /// A reference to hand to a drawing operation.
    CanvasRef ref() { return host.canvas(); }

    /// The lines so far; the log starts anew.
    Lines taken() { return host.takeCalls(); }

    /// The same, but only the calls of this operation.
    Lines taken(std::string_view operation) { return callsOf(operation, taken()); }

    HostKit::MemoryHost host;
};

}  // namespace Meridax::VisualControls::Rotavue
