#pragma once

#include "cli/render_options.h"
#include "cli/shown_scene.h"
#include "workbench/scene/graph_scale.h"

#include <string>

namespace Rotavue::Cli {

/// One picture of a scene, drawn by the loaded plug-in.
class OrbitPicture {
public:
    /// All three must outlive the picture.
    OrbitPicture(const RenderOptions& options, ShownScene& shown, Workbench::PictureStudio& studio);

    /// The bytes of the file.
    std::string paint();

private:
    /// The scale that the plot gets in an area.
    Workbench::GraphScale scaleFor(const Workbench::PictureArea& area) const;

    Workbench::PictureArea areaWith(const Workbench::PictureHeader& header) const;

    /// Whether the names of all curves have room in one line along the height of the area.
    bool namesFit(const Workbench::PictureArea& area) const;

    /// Draws with the settings as they are loaded, and once more with the pointer where it is
    /// given.
    std::string drawn(const Workbench::PictureHeader& header);

    /// What the pointer's place is in the area. Raises `UsageError` for a place above it.
    PicturePoint pointerIn(const Workbench::PictureArea& area) const;

    const RenderOptions& options_;
    ShownScene& shown_;
    OrbitScene& scene_;
    Workbench::PictureStudio& studio_;
};

}  // namespace Rotavue::Cli
