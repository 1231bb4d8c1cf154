#pragma once

#include <QRect>

#include <vector>

namespace Rotavue::Workbench {

/// The places of a number of orbits in an area: as few columns as make them largest, all alike, row
/// by row.
std::vector<QRect> orbitPlaces(const QRect& area, int count, int between);

}  // namespace Rotavue::Workbench
