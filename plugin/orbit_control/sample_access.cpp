#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/orbit_control/integer_width.h"
#include "plugin/orbit_control/rotavue_visual_control.h"

#include <algorithm>

namespace Meridax::VisualControls::Rotavue {
namespace {

using AppRef = Host::Ref<Host::IHostApp>;

// Where the ring buffer's next sample stood `back` samples ago.
std::int32_t ringPosition(const AppRef& app, Host::IHostChannel& channel, std::int32_t back) {
    if (channel.isAsynchronous()) {
        return cutTo32(std::int64_t{channel.getWritePosition()} - back);
    }
    const std::int64_t counter = channel.getSampleCounter();
    const std::int64_t ahead = cutTo32(counter - app->getData()->getAcquiredSampleCount());
    const std::int64_t steps = quotient32(cutTo32(ahead - back), channel.getRateDivider());
    return cutTo32(steps + channel.getWritePosition());
}

double heldValue(Host::IHostChannel& channel, std::int32_t sample, std::int32_t element,
                 std::int32_t component) {
    const std::int64_t place = std::int64_t{channel.getArraySize()} * sample + element;
    return channel.getValue(cutTo32(place), component);
}

// The sample before the ring position `next`. The count may equal the position: such a sample is
// asked for.
double valueBefore(Host::IHostChannel& channel, std::int32_t next, std::int32_t element,
                   std::int32_t component) {
    std::int32_t sample = cutTo32(std::int64_t{next} - 1);
    if (sample < 0) sample = cutTo32(std::int64_t{sample} + channel.getBufferSize());
    if (channel.getSampleCount() < sample) return 0.0;
    return heldValue(channel, sample, element, component);
}

double valueAtTime(Host::IHostChannel& channel, double seconds, std::int32_t& cursor,
                   std::int32_t element, std::int32_t component) {
    return channel.scaleValue(channel.getValueAtTime(seconds, cursor, 0, element, component));
}

}  // namespace

double RotavueVisualControl::getSample(Host::IHostChannel& channel, std::int32_t back,
                                       std::int32_t element, std::int32_t component) {
    if (hostApp->isAcquiring()) {
        return valueBefore(channel, ringPosition(hostApp, channel, back), element, component);
    }
    if (!channel.isAsynchronous()) {
        return valueAtTime(channel, timeBeforeCursor(channel, back), sampleCursor, element,
                           component);
    }
    if (sampleCursor == -1) sampleCursor = findLatestSampleBefore(channel);
    const std::int64_t sample = std::int64_t{sampleCursor} - back;
    return sample < 0 ? 0.0 : heldValue(channel, cutTo32(sample), element, component);
}

double RotavueVisualControl::getLatestArrayValue(Host::IHostChannel& channel, std::int32_t element,
                                                 std::int32_t component) {
    if (hostApp->isAcquiring()) {
        return valueBefore(channel, channel.getWritePosition(), element, component);
    }
    return valueAtTime(channel, cursorTime(), sampleCursor, element, component);
}

double RotavueVisualControl::cursorTime() {
    const Host::DataPosition cursor = hostApp->getData()->getCurrentPosition();
    const std::int32_t blockSize = hostApp->getData()->getBlockSize();
    const double rate = hostApp->getData()->getSampleRate();
    return cursorQuotient_.of(static_cast<double>(cursor.linear(blockSize)), rate);
}

double RotavueVisualControl::timeBeforeCursor(Host::IHostChannel& channel, std::int32_t back) {
    const double cursor = cursorTime();
    const double rate = channel.getSampleRate();
    const double spacing = rate == 0.0 ? 0.0 : spacingQuotient_.of(1.0, rate);
    const double seconds = cursor - back * spacing;
    return seconds > 0.0 ? seconds : 0.0;
}

std::int32_t RotavueVisualControl::findLatestSampleBefore(Host::IHostChannel& channel) {
    const std::int32_t count = channel.getSampleCount();
    if (count == 0) return 0;
    const double now = cursorTime();
    for (std::int32_t i = std::max(count, 0) - 1; i >= 0 && stampAllowance_.take(); --i) {
        if (!(channel.getTimestamp(i) >= now)) return i;
    }
    return -1;
}

}  // namespace Meridax::VisualControls::Rotavue
