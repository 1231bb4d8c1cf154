#include "benchmarks/bare_loop.h"

#include "plugin/framework/host/data/host_data.h"

namespace Rotavue::Benchmarks {
namespace {

using AppRef = Host::Ref<Host::IHostApp>;

double readRunning(const AppRef& app, Host::IHostChannel& channel, std::int32_t place,
                   std::int32_t component) {
    std::int32_t seen = 0;
    seen += app->isAcquiring() ? 1 : 0;
    seen += channel.isAsynchronous() ? 1 : 0;
    seen += channel.getSampleCounter();
    seen -= app->getData()->getAcquiredSampleCount();
    seen += channel.getRateDivider();
    seen += channel.getWritePosition();
    seen -= channel.getBufferSize();
    seen += channel.getSampleCount();
    seen += channel.getArraySize();
    return channel.getValue(place, component) + seen;
}

double readStored(const AppRef& app, Host::IHostChannel& channel, std::int32_t& cursor,
                  double seconds, std::int32_t component) {
    std::int32_t seen = 0;
    seen += app->isAcquiring() ? 1 : 0;
    seen += channel.isAsynchronous() ? 1 : 0;
    seen += app->getData()->getCurrentPosition().offset;
    seen += app->getData()->getBlockSize();
    const double rates = app->getData()->getSampleRate() + channel.getSampleRate();
    const double raw = channel.getValueAtTime(seconds, cursor, 0, 0, component);
    return channel.scaleValue(raw) + rates + seen;
}

double readAll(BenchmarkHost& host, std::int32_t points, Mode mode) {
    const AppRef app = host.app();
    const Host::Ref<Host::IHostChannel> channel = host.orbit();
    std::int32_t cursor = 0;
    double sum = 0.0;
    for (std::int32_t i = points - 1; i >= 0; --i) {
        const double seconds = i / (10.0 * points);
        for (const std::int32_t component : {4, 5}) {
            sum += mode == Mode::Acquiring ? readRunning(app, *channel, i, component)
                                           : readStored(app, *channel, cursor, seconds, component);
        }
    }
    return sum;
}

}  // namespace

double bareLoop(BenchmarkHost& host, std::int32_t points, Mode mode) {
    const double sum = readAll(host, points, mode);
    const Host::Ref<Host::IHostCanvas> canvas = host.canvas();
    canvas->MoveTo(0, 0);
    for (std::int32_t i = 1; i < points; ++i)
        canvas->LineTo(i & 255, i & 127);
    return sum;
}

}  // namespace Rotavue::Benchmarks
