#include "plugin/settings/clipboard_writer.h"

#include "plugin/orbit_control/assignment.h"
#include "plugin/orbit_control/channel_info.h"
#include "plugin/orbit_control/channel_layout.h"
#include "plugin/orbit_control/orbit_kind.h"
#include "plugin/orbit_control/setting_values.h"
#include "plugin/orbit_graph/number_format.h"

namespace Meridax::VisualControls::Rotavue {
namespace {

constexpr const wchar_t* EndOfLine = L"\r\n";
constexpr const wchar_t* ColumnNames = L"X\tY\r\n";

}  // namespace

void ClipboardWriter::addGroup(Host::IHostChannelList& group) {
    const Host::Ref<Host::IHostChannel> channel = group.getItem(0);
    control_.applyBearingConfig(*channel);
    addTitle(*channel);
    addWindow(*channel, tachoChannelOf(group).get());
    text_ += EndOfLine;
}

void ClipboardWriter::addChannel(Host::IHostChannel& channel) {
    control_.applyBearingConfig(channel);
    const OrbitKind kind = readOrbitType(channel);
    addTitle(channel);
    addSection(channel, kind);
    text_ += EndOfLine;
}

void ClipboardWriter::addTitle(Host::IHostChannel& channel) {
    const std::wstring name = inserted(channel.getName());
    const std::wstring unit = inserted(channel.getUnit());
    if (!full()) text_ += name + L" (" + unit + L")\r\n";
}

void ClipboardWriter::addSection(Host::IHostChannel& channel, OrbitKind kind) {
    switch (kind) {
        case OrbitKind::Raw:
            return;
        case OrbitKind::Average:
        case OrbitKind::Reference:
            return addArray(channel, kind);
        case OrbitKind::Harmonic:
            return addHarmonic(channel);
        case OrbitKind::ShaftCenter:
            return addShaftCenter(channel);
        case OrbitKind::SubSync:
            return addWindow(channel, &channel);
    }
}

void ClipboardWriter::addWindow(Host::IHostChannel& channel, Host::IHostChannel* tacho) {
    text_ += ColumnNames;
    const SensorFrame frame = control_.sensorFrame();
    const HistoryWindow window = control_.findHistoryWindow(tacho);
    const std::int32_t rows = rowsFor(std::int64_t{window.end} - window.first);
    for (std::int32_t back = window.first; back < window.first + rows; ++back) {
        const double a = control_.getSample(channel, back, 0, Component::X);
        const double b = control_.getSample(channel, back, 0, Component::Y);
        const Point point = frame.turned(a, b);
        addRow({point.x, point.y});
    }
}

// The axis of an averaged orbit is asked for and not used: only a failure of that has an effect.
void ClipboardWriter::addArray(Host::IHostChannel& channel, OrbitKind kind) {
    text_ += ColumnNames;
    const SensorFrame frame = control_.sensorFrame();
    const std::int32_t rows = rowsFor(channel.getArraySize());
    for (std::int32_t k = 0; k < rows; ++k) {
        const Point point = control_.readArrayPoint(channel, frame, k);
        if (kind == OrbitKind::Average) readArrayAxis(channel);
        addRow({point.x, point.y});
    }
}

// The channel's own amplitudes: the drawing's conversion to peak values is left out.
void ClipboardWriter::addHarmonic(Host::IHostChannel& channel) {
    text_ += ColumnNames;
    const std::int32_t half = channel.getArraySize() / 2;
    const std::int32_t orders = rowsFor(std::int64_t{half} * EllipseSteps) / EllipseSteps;
    for (std::int32_t k = 0; k < orders; ++k) {
        const Phasor atY = phasor(channel, k);
        const Phasor atX = phasor(channel, k + half);
        addEllipse(atY, atX);
    }
}

Phasor ClipboardWriter::phasor(Host::IHostChannel& channel, std::int32_t element) {
    const double real = control_.getLatestArrayValue(channel, element, Component::X);
    const double imaginary = control_.getLatestArrayValue(channel, element, Component::Y);
    return Phasor({real, imaginary});
}

void ClipboardWriter::addEllipse(const Phasor& atY, const Phasor& atX) {
    const SensorFrame frame = control_.sensorFrame();
    for (int degree = 0; degree < EllipseSteps; ++degree) {
        const double u = atY.at(radians(degree));
        const double v = atX.at(radians(degree));
        const Point point = frame.turned(v, u);
        addRow({point.x, point.y});
    }
}

// The label's column stays in front of all rows that follow, whatever their section has: what was
// copied that way is read that way. The names of the columns start anew in each section.
void ClipboardWriter::addShaftCenter(Host::IHostChannel& channel) {
    const bool isRpm = control_.graph_.displayType() == DisplayType::Rpm;
    text_ += isRpm ? L"RPM\t" : L"Time\t";
    text_ += ColumnNames;
    columns_.emplace_front(isRpm ? L"%.0f" : L"%.1f");
    control_.sampleCursor = -1;
    const SensorFrame frame = control_.sensorFrame();
    for (std::int32_t back = rowsFor(channel.getSampleCount()) - 1; back >= 0; --back) {
        const CurveSample sample = control_.readShaftCenter(channel, frame, back);
        addRow({sample.z, sample.x, sample.y});
    }
}

// How many of the wanted rows the control's allowance still holds; a row takes a place for each tab
// that it has, and so bounds the width as well as the length of the text.
std::int32_t ClipboardWriter::rowsFor(std::int64_t wanted) {
    const auto tabs = static_cast<std::int64_t>(columns_.size()) - 1;
    return static_cast<std::int32_t>(control_.pointAllowance_.take(wanted * tabs) / tabs);
}

// The numbers fill the columns from the left; a column without one stays empty.
void ClipboardWriter::addRow(std::initializer_list<double> numbers) {
    if (full()) return;
    const double* next = numbers.begin();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (i > 0) text_ += L'\t';
        if (next != numbers.end()) text_ += formatValue(columns_[i], *next++);
    }
    text_ += EndOfLine;
}

}  // namespace Meridax::VisualControls::Rotavue
