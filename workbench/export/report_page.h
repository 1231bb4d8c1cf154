#pragma once

#include "workbench/paint/picture_studio.h"

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

/// Numbers in lines and columns; the first column is words, the others stand to the right.
struct ReportTable {
    std::vector<std::string> head = {};
    std::vector<std::vector<std::string>> rows = {};
};

/// What stands on a report page, from the top down.
struct ReportContent {
    std::string title;
    std::vector<std::string> facts = {};  ///< what holds for all orbits, a line each
    std::vector<ReportOrbit> orbits = {};
    ReportTable numbers = {};
    std::vector<std::string> notes = {};  ///< what a person should know, a line each
};

/// One page in the order's size, always dark on light: it is printed. Texts are cut with an
/// ellipsis where they do not fit, and notes are left out from the end, which the last line then
/// says. Raises `std::runtime_error` where the page is too small for its orbits.
std::string paintReport(const ReportContent& content, const PictureOrder& order);

}  // namespace Rotavue::Workbench
