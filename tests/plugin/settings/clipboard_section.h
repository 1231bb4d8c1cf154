#pragma once

#include "tests/plugin/orbit_control/control_test.h"

#include <string>
#include <utility>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

using WideLines = std::vector<std::wstring>;

/// A control whose clipboard text is looked at line by line.
class ClipboardSection : public ControlTest {
protected:
    /// The lines of the text, each without its end.
    WideLines lines() {
        const std::wstring text = control.clipboardText();
        WideLines found;
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t end = text.find(L"\r\n", start);
            found.push_back(text.substr(start, end - start));
            start = end + 2;
        }
        return found;
    }

    /// Two positions, oldest first: gap at the Y angle, gap at the X angle, speed, time.
    HostKit::ChannelDescription& describeShaftCenter(const std::string& id) {
        HostKit::ChannelDescription& described = assignChannel(id, L"");
        described.array = true;
        described.arraySize = 4;
        described.sampleCount = 2;
        described.values[0] = {1, 2, 2999.6, 1.25, 3, 4, 3000.4, 1.5};
        return described;
    }

    /// The newest array of a channel: element by element, components 4 and 5.
    HostKit::ChannelDescription& describeArray(const std::string& id, const std::wstring& type,
                                               std::vector<double> x, std::vector<double> y) {
        HostKit::ChannelDescription& described = assignChannel(id, type);
        described.array = true;
        described.arraySize = static_cast<std::int32_t>(x.size());
        described.sampleCount = 1;
        described.axes = {{0.0, 1.0}};
        described.values[4] = std::move(x);
        described.values[5] = std::move(y);
        return described;
    }
};

}  // namespace Meridax::VisualControls::Rotavue
