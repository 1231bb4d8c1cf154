#pragma once

#include "workbench/bench/bench.h"
#include "workbench/export/report_page.h"
#include "workbench/export/report_table.h"
#include "workbench/paint/picture_studio.h"

#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// What a report is called: its machines, or what there is without any that has a name.
std::string reportTitle(const Bench& bench);

/// What a report says of all planes, a line each: recordings, run-out.
std::vector<std::string> reportFacts(const Bench& bench);

/// The numbers of the shown turns, two columns for each plane.
ReportTable reportNumbers(const Bench& bench);

/// A report page of these planes, all of the bench, ready to be painted: their orbits, at one scale
/// if that is asked for, the numbers of the shown turns, and what a reader should know. Raises
/// `std::runtime_error` where the plug-in fails or the page has no room.
DrawnReport drawPlaneReport(Bench& bench, const PictureOrder& order, bool sameScale);

}  // namespace Rotavue::Workbench
