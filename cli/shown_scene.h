#pragma once

#include "cli/orbit_scene.h"
#include "cli/render_options.h"
#include "host_kit/control/driven_control.h"
#include "host_kit/loader/module.h"

namespace Rotavue::Cli {

/// Recordings on show in a control of the loaded plug-in, and the limits that it finds for them.
/// Nothing is painted yet and nothing of Qt is needed: one thread may make the object while another
/// loads what paints, and hand it over.
class ShownScene {
public:
    /// The options must outlive the object. Raises what `OrbitScene` raises, and
    /// `std::runtime_error` where the plug-in cannot be loaded or refuses.
    explicit ShownScene(const RenderOptions& options);

    OrbitScene& scene() { return scene_; }
    HostKit::DrivenControl& control() { return control_; }

    /// How far the axes run each way: as the options fix it, or the largest that the plug-in itself
    /// finds for what is on show; 0 for nothing.
    double limit() const { return limit_; }

    /// Whether one scale tells both axes.
    bool limitsAreAlike() const { return limitsAreAlike_; }

private:
    void findLimits(const RenderOptions& options);

    OrbitScene scene_;
    HostKit::Module module_;
    HostKit::DrivenControl control_;
    double limit_ = 0.0;
    bool limitsAreAlike_ = true;
};

}  // namespace Rotavue::Cli
