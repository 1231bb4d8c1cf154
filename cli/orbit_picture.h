#pragma once

#include "cli/driven_control.h"
#include "cli/orbit_scene.h"
#include "cli/render_options.h"

#include <string>

namespace Rotavue::Cli {

/// One picture of a scene, drawn by the loaded plug-in.
class OrbitPicture {
public:
    /// All three must outlive the picture.
    OrbitPicture(const RenderOptions& options, OrbitScene& scene, Workbench::PictureStudio& studio);

    /// The bytes of the file.
    std::string paint();

private:
    /// The scale that the plot gets in an area.
    GraphScale scaleFor(DrivenControl& control, const Workbench::PictureArea& area);

    /// The largest limit that the plug-in itself finds for what is on show; 0 for nothing.
    double automaticLimit(DrivenControl& control, const Workbench::PictureArea& area);

    Workbench::PictureArea areaWith(const Workbench::PictureHeader& header) const;

    const RenderOptions& options_;
    OrbitScene& scene_;
    Workbench::PictureStudio& studio_;
};

}  // namespace Rotavue::Cli
