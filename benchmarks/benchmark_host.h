#pragma once

#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <memory>

namespace Rotavue::Benchmarks {

namespace Host = Meridax::Host;

/// A host with one raw orbit of that many points, and a canvas that does nothing. Its master rate
/// is chosen so that the control's 100 ms hold exactly the points.
class BenchmarkHost {
public:
    virtual ~BenchmarkHost() = default;

    virtual Host::Ref<Host::IHostApp> app() = 0;
    virtual Host::Ref<Host::IHostVisualControl> control() = 0;
    virtual Host::Ref<Host::IHostChannel> orbit() = 0;
    virtual Host::Ref<Host::IHostCanvas> canvas() = 0;
};

enum class Mode { Acquiring, Stored };

__attribute__((visibility("default"))) std::unique_ptr<BenchmarkHost> makeBenchmarkHost(
    std::int32_t points, Mode mode);

}  // namespace Rotavue::Benchmarks
