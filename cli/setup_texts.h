#pragma once

#include "cli/orbit_scene.h"
#include "cli/render_options.h"
#include "host_kit/control/driven_control.h"
#include "workbench/scene/graph_scale.h"

#include <optional>

/// What `render` asked for as the texts of a setup document, and what a control saved there.
namespace Rotavue::Cli {

/// How the plot is laid out.
struct PlotLayout {
    std::int32_t ticks = 5;
    std::optional<double> limit;  ///< unset: the plug-in finds its limits itself
    bool legendInRow = true;      ///< all names in one line, or a line each
};

/// Every setting that matters to the scene.
HostKit::DrivenControl::Settings settingsFor(const RenderOptions& options, const OrbitScene& scene,
                                             const PlotLayout& layout);

/// The larger of the x limits' amounts in saved settings.
double limitIn(const HostKit::DrivenControl::Settings& saved);

/// Whether both axes of saved settings reach equally far, each way.
bool limitsAreAlike(const HostKit::DrivenControl::Settings& saved);

}  // namespace Rotavue::Cli
