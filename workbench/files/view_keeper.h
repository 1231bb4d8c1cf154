#pragma once

#include <memory>
#include <vector>

#include "workbench/bench/bench.h"
#include "workbench/files/view_file.h"

namespace Rotavue::Workbench {

/// What the bench shows as a view. The controls are asked for their settings by a message.
View viewOf(Bench& bench);

/// Puts a view on the bench in the place of what it shows, with the sources of the view's planes in
/// their order; what is taken off them has been taken off. There is nothing to undo afterwards.
/// Raises what `Plane` raises, and the bench then shows what it did before.
void showView(Bench& bench, const View& view,
              const std::vector<std::shared_ptr<const PlaneSource>>& sources);

}  // namespace Rotavue::Workbench
