#pragma once

#include "cli/driven_control.h"
#include "cli/graph_scale.h"
#include "cli/orbit_scene.h"
#include "cli/render_options.h"

#include <optional>

/// What `render` asked for as the texts of a setup document, and what a control saved there.
namespace Rotavue::Cli {

/// Every setting that matters to a raw orbit. Without `limit` the plug-in finds its limits itself.
DrivenControl::Settings settingsFor(const RenderOptions& options, const ShownSpan& span,
                                    std::int32_t ticks, std::optional<double> limit);

/// The larger of the x limits' amounts in saved settings.
double limitIn(const DrivenControl::Settings& saved);

}  // namespace Rotavue::Cli
