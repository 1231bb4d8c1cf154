#pragma once

#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/orbit_graph/orbit_curve.h"
#include "plugin/orbit_graph/phasor.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <string>
#include <utility>

namespace Meridax::VisualControls::Rotavue {

/// Writes one clipboard text, a section for each orbit: a title, a line of column names, the rows
/// and an empty line. The channels are read anew, so the text holds the data as it stands now.
class ClipboardWriter {
public:
    /// After the control's check of the bearings, whose allowance of places the rows use up.
    explicit ClipboardWriter(RotavueVisualControl& control) : control_(control) {}

    void addGroup(Host::IHostChannelList& group);
    void addChannel(Host::IHostChannel& channel);

    std::wstring takeText() { return std::move(text_); }

    /// How long the text grows before rows and titles are left out: some three million rows of
    /// usual numbers, the longest time of the property panel at 300 kHz. A number can have 300
    /// digits, and a name a million characters.
    static constexpr std::size_t MostCharacters = std::size_t{1} << 26;

private:
    bool full() const { return text_.size() >= MostCharacters; }
    void addTitle(Host::IHostChannel& channel);
    void addSection(Host::IHostChannel& channel, OrbitKind kind);
    void addWindow(Host::IHostChannel& channel, Host::IHostChannel* tacho);
    void addArray(Host::IHostChannel& channel, OrbitKind kind);
    void addHarmonic(Host::IHostChannel& channel);
    void addEllipse(const Phasor& atY, const Phasor& atX);
    void addShaftCenter(Host::IHostChannel& channel);
    void addRow(std::initializer_list<double> numbers);

    Phasor phasor(Host::IHostChannel& channel, std::int32_t element);
    std::int32_t rowsFor(std::int64_t wanted);

    RotavueVisualControl& control_;
    std::deque<std::wstring> columns_{L"%.3f", L"%.3f"};  ///< the format of each column of a row
    std::wstring text_;
};

}  // namespace Meridax::VisualControls::Rotavue
