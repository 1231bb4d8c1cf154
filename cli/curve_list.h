#pragma once

#include "workbench/scene/curve_request.h"

#include <string>
#include <string_view>
#include <vector>

/// Curves and orders as `--show` and `--orders` spell them.
namespace Rotavue::Cli {

/// The items of "raw,by-angle,not-1x,average,harmonic:1+2,subsync,reference:FILE,shaft-center", of
/// which any may be left out and none comes twice, but for references to different files. Raises
/// `UsageError`.
std::vector<Workbench::CurveRequest> curveRequests(const std::string& text);

/// The orders of "1+2+0.43". Raises `UsageError`.
std::vector<double> ordersIn(std::string_view option, const std::string& text);

}  // namespace Rotavue::Cli
