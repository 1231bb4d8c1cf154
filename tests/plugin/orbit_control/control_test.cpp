#include "tests/plugin/orbit_control/control_test.h"

#include <algorithm>
#include <ostream>

namespace Meridax::VisualControls::Rotavue {

void PrintTo(const Point& point, std::ostream* out) {
    *out << '(' << point.x << ", " << point.y << ')';
}

void PrintTo(const CurveSample& sample, std::ostream* out) {
    *out << '(' << sample.x << ", " << sample.y << ", " << sample.z << ')';
}

void PrintTo(const Range& range, std::ostream* out) {
    *out << "x " << range.xMin << " to " << range.xMax << ", y " << range.yMin << " to "
         << range.yMax;
}

void PrintTo(const HistoryWindow& window, std::ostream* out) {
    *out << window.first << " to " << window.end;
}

Lines linesOf(const Lines& lines, const std::string& beginning) {
    Lines found;
    std::ranges::copy_if(lines, std::back_inserter(found),
                         [&](const std::string& line) { return line.starts_with(beginning); });
    return found;
}

ControlTest::ControlTest() {
    control.hostApp = host.app();
    control.hostControl = host.control();
}

HostKit::ChannelDescription& ControlTest::assignChannel(const std::string& id,
                                                        const std::wstring& type) {
    HostKit::ChannelDescription& described = channel(id);
    described.properties = {{L"OrbitType", type}, {L"Orbit X Angle", L"90"}};
    host.description.assigned.channels.emplace_back(id);
    return described;
}

HostKit::ChannelDescription& ControlTest::describeOrbit(const std::string& id,
                                                        std::vector<double> x,
                                                        std::vector<double> y) {
    HostKit::ChannelDescription& described = channel(id);
    described.properties = {{L"Orbit X Angle", L"90"}};
    described.sampleCount = static_cast<std::int32_t>(x.size());
    described.values[4] = std::move(x);
    described.values[5] = std::move(y);
    return described;
}

HostKit::ChannelDescription& ControlTest::describeTacho(const std::string& id,
                                                        std::vector<double> angles) {
    HostKit::ChannelDescription& described = channel(id);
    described.sampleCount = static_cast<std::int32_t>(angles.size());
    described.sampleRate = 1000.0;
    described.values[0] = std::move(angles);
    return described;
}

void ControlTest::assignGroup(std::vector<HostKit::ChannelItem> channels) {
    host.description.assigned.groups.push_back({std::move(channels), {{L"OrbitType", L"Raw"}}});
}

Api::DrawContext ControlTest::context() {
    Api::DrawContext result;
    result.canvas = host.canvas();
    result.width = 300;
    result.height = 300;
    result.gridColor = 1;
    result.textColor = 2;
    result.axisColor = 3;
    result.borderColor = 4;
    return result;
}

void ControlTest::draw() {
    control.draw(context());
}

}  // namespace Meridax::VisualControls::Rotavue
