#pragma once

#include "workbench/export/report_table.h"
#include "workbench/paint/picture_studio.h"
#include "workbench/paint/recorded_drawing.h"
#include "workbench/recording/reading_watch.h"

#include <functional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// One orbit of a report: what stands in its strip, given the area without one, and who draws it on
/// a canvas of the area that is left.
struct ReportOrbit {
    std::function<PictureHeader(const PictureArea&)> header;
    std::function<void(Meridax::Host::Ref<Meridax::Host::IHostCanvas>, const PictureArea&)> draw;
};

/// What stands on a report page, from the top down.
struct ReportContent {
    std::string title;
    std::vector<std::string> facts = {};  ///< what holds for all orbits, a line each
    std::vector<ReportOrbit> orbits = {};
    ReportTable numbers = {};
    std::vector<std::string> notes = {};  ///< what a person should know, a line each
};

/// An orbit as it was drawn.
struct DrawnOrbit {
    PictureHeader header;
    RecordedDrawing drawing;
};

/// A report of which nothing is left to be done but to paint it: it holds nothing of those who drew
/// its orbits.
struct DrawnReport {
    ReportContent content;  ///< without its orbits
    PictureOrder order;
    std::vector<DrawnOrbit> orbits;
};

/// Lays the page out and has its orbits drawn. Raises `std::runtime_error` where the page is too
/// small for them.
DrawnReport drawReport(ReportContent content, const PictureOrder& order);

/// One page in the order's size, always dark on light: it is printed. Facts and notes go on in
/// further lines, and the numbers in further blocks, where they are too long; only what has no room
/// then is cut with an ellipsis. Notes are left out from the end, which the last line then says.
/// Any thread may ask. Raises `std::runtime_error` where there can be no file, and
/// `ReadingCancelled`.
std::string paintReport(const DrawnReport& report,
                        const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
