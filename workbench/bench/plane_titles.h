#pragma once

#include "workbench/bench/plane_source.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// What a plane is called beside others.
struct PlaneTitle {
    std::string name;          ///< the plane's own
    std::string machine = {};  ///< where that tells it from others of the name; else empty
    std::string detail = {};   ///< what else does: file, columns, a number; empty: nothing has to

    /// "Bearing 1", or where several are called so "Bearing 1 (run-up.csv)".
    std::string text() const;
};

/// The titles of planes that are shown together, in their order; no two have the same text. What
/// planes of one name differ in is added, as much of it as is needed and in this order: machine,
/// file, columns of the probes, a running number.
std::vector<PlaneTitle> planeTitles(const std::vector<const PlaneSource*>& planes);

/// The files, each once, by their names; with the folder where names are the same.
std::vector<std::string> fileTitles(const std::vector<std::filesystem::path>& files);

}  // namespace Rotavue::Workbench
