#pragma once

#include "workbench/bench/bench.h"

#include <filesystem>
#include <vector>

namespace Rotavue::Workbench {

/// The files that the planes of a bench are made from, which nothing may replace: recordings, their
/// machine files, references, recordings of slow roll.
std::vector<std::filesystem::path> sourceFiles(const Bench& bench);

}  // namespace Rotavue::Workbench
