#pragma once

#include "workbench/paint/picture_studio.h"
#include "workbench/recording/recording.h"
#include "workbench/scene/curve_request.h"
#include "workbench/scene/graph_scale.h"
#include "workbench/scene/shown_span.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// What a picture shows.
struct PictureSubject {
    const MachineFacts& machine;
    std::string name;         ///< of what has neither machine nor point
    std::string detail = {};  ///< what tells it from others of its title; empty: nothing has to
    const std::vector<CurveRequest>& curves;
    Coupling coupling = Coupling::Dc;
    ShownSpan span;
    std::string compensation = {};  ///< how pictures say it; empty: run-out is left in
    std::string rest = {};          ///< likewise, `restText`
};

/// What engineers look for beside an orbit and the plug-in leaves to its host: machine and point,
/// mode, speed, probes and their angles, rotation, scale, compensation, time.
PictureHeader pictureHeader(const PictureSubject& subject, const std::optional<GraphScale>& scale);

}  // namespace Rotavue::Workbench
