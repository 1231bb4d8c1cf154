#pragma once

#include "cli/orbit_scene.h"
#include "workbench/paint/picture_studio.h"
#include "workbench/scene/graph_scale.h"

#include <optional>

namespace Rotavue::Cli {

/// What engineers look for beside an orbit and the plug-in leaves to its host: machine and point,
/// mode, probes and their angles, rotation, speed, scale, compensation.
Workbench::PictureHeader pictureHeader(const OrbitScene& scene,
                                       const std::optional<Workbench::GraphScale>& scale);

}  // namespace Rotavue::Cli
