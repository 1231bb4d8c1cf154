#pragma once

#include <functional>
#include <optional>

#include "workbench/bench/bench.h"
#include "workbench/files/view_file.h"

namespace Rotavue::Workbench {

/// How run-out that is taken off a plane gets into a view and back. Whoever takes it off supplies
/// this.
struct CompensationKeeper {
    /// What is taken off the plane, if anything.
    std::function<std::optional<ViewCompensation>(const Plane&)> taken;
    /// Takes it off again, at once or later.
    std::function<void(Plane&, const ViewCompensation&)> take;
};

/// What the bench shows as a view. The controls are asked for their settings by a message.
View viewOf(Bench& bench, const CompensationKeeper& keeper = {});

/// Puts a view on the bench in the place of what it shows, with the prepared recordings of the
/// view's planes in their order. There is nothing to undo afterwards. Raises what `Plane` raises;
/// the bench may then show some of the planes.
void showView(Bench& bench, const View& view,
              const std::vector<std::shared_ptr<const PlaneSource>>& planes,
              const CompensationKeeper& keeper = {});

}  // namespace Rotavue::Workbench
