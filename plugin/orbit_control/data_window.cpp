#include "plugin/orbit_control/data_window.h"

#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/framework/host/status.h"
#include "plugin/orbit_control/integer_width.h"

#include <algorithm>
#include <cmath>

namespace Meridax::VisualControls::Rotavue {
namespace {

// Samples of tens of thousands of years, and room for a sum with any linear sample number.
constexpr double BeyondAllData = 0x1p61;

std::int64_t wholeSamples(double samples) {
    if (std::isnan(samples)) return static_cast<std::int64_t>(BeyondAllData);
    return static_cast<std::int64_t>(
        std::clamp(std::round(samples), -BeyondAllData, BeyondAllData));
}

Host::DataPosition positionOf(std::int64_t sample, std::int32_t blockSize) {
    if (blockSize == 0) throw Host::HostError(Host::Status::InvalidArgument);
    return {cutTo32(sample / blockSize), cutTo32(sample % blockSize)};
}

}  // namespace

DataWindow DataWindow::read(const Host::Ref<Host::IHostApp>& app) {
    DataWindow window;
    window.sampleRate = app->getData()->getSampleRate();
    window.blockSize = app->getData()->getBlockSize();
    window.cursor = app->getData()->getCurrentPosition().linear(window.blockSize);
    window.lowest = app->getData()->getFirstPosition().linear(window.blockSize);
    window.highest = app->getData()->getLastPosition().linear(window.blockSize);
    return window;
}

void DataWindow::cutSeconds(double span) {
    const std::int64_t half = wholeSamples(span * sampleRate * 0.5);
    from = positionOf(std::max(cursor - half, lowest), blockSize);
    to = positionOf(std::min(cursor + half, highest), blockSize);
}

}  // namespace Meridax::VisualControls::Rotavue
