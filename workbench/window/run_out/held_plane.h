#pragma once

#include "workbench/bench/bench.h"

#include <algorithm>
#include <memory>

namespace Rotavue::Workbench {

/// A plane of the bench to be held behind a dialog: recordings and views arrive meanwhile, so that
/// another plane may be the current one then, and this one gone. Null for none of the bench's.
inline std::shared_ptr<Plane> heldPlane(const Bench& bench, const Plane* plane) {
    const auto& planes = bench.planes();
    const auto found = std::find_if(planes.begin(), planes.end(),
                                    [&](const auto& one) { return one.get() == plane; });
    return found == planes.end() ? nullptr : *found;
}

}  // namespace Rotavue::Workbench
