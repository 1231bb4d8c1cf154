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

    /// Whether the names of all curves have room in one line along the height of the area.
    bool namesFit(const Workbench::PictureArea& area) const;

    /// Draws with the settings as they are loaded, and once more with the pointer where it is
    /// given.
    std::string drawn(DrivenControl& control, const Workbench::PictureHeader& header);

    /// What the pointer's place is in the area. Raises `UsageError` for a place above it.
    PicturePoint pointerIn(const Workbench::PictureArea& area) const;

    const RenderOptions& options_;
    OrbitScene& scene_;
    Workbench::PictureStudio& studio_;
    bool alike_ = true;  ///< one scale tells both axes
};

}  // namespace Rotavue::Cli
