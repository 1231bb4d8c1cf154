#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/ref.h"

namespace Rotavue::Benchmarks {

/// A canvas that does nothing, whose texts are 8 pixels a character wide.
Meridax::Host::Ref<Meridax::Host::IHostCanvas> nullCanvas();

}  // namespace Rotavue::Benchmarks
