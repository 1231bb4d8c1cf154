#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "workbench/bench/run_out.h"
#include "workbench/recording/recording_options.h"
#include "workbench/scene/curve_options.h"
#include "workbench/scene/curve_request.h"

namespace Rotavue::Workbench {

/// One plane of a view.
struct ViewPlane {
    std::filesystem::path recording;
    RecordingOptions options;  ///< beyond its machine file; which that is, is kept as well
    std::vector<CurveRequest> curves;
    CurveOptions curveOptions;                 ///< `reference` is not kept: it follows `options`
    std::map<std::string, std::string> setup;  ///< the control's settings as it saved them
    std::optional<RunOutSource> compensation;
    std::vector<std::size_t> colors;  ///< the number of each curve's colour; empty: the usual ones
};

/// What a window shows: enough to show it again. docs/views.md tells the file member by member.
struct View {
    std::vector<ViewPlane> planes;
    double cursor = 0.0;  ///< s after the first sample
};

/// Reads a view. Recordings and references in it are found from the file's own folder. Throws
/// RecordingError if the file cannot be read, is larger than 4 MiB, is no JSON or holds anything
/// that no view holds; the recordings themselves are not looked at.
View readView(const std::filesystem::path& file);

/// Writes a view, beside and renamed: a full disk or a crash leaves the old one whole. Throws
/// RecordingError if that fails.
void writeView(const std::filesystem::path& file, const View& view);

/// Whether the name is one of a view: it ends with .rotavue.
bool isViewName(const std::filesystem::path& file);

}  // namespace Rotavue::Workbench
