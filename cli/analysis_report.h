#pragma once

#include "workbench/analysis/field_vector.h"
#include "workbench/analysis/orbit_summary.h"
#include "workbench/analysis/shaft_center.h"
#include "workbench/analysis/time_span.h"
#include "workbench/recording/recording.h"

#include <optional>
#include <string>
#include <vector>

/// What `analyze` finds in a recording, and how it is told.
namespace Rotavue::Cli {

struct AnalysisOrder {
    std::vector<double> orders{1.0, 2.0};
    Workbench::TimeSpan span;                     ///< within it; all of the recording unless set
    std::optional<double> window;                 ///< s; unset: one window for the whole span
    std::optional<Workbench::RestPosition> rest;  ///< with or without a span: how the shaft rests
    std::optional<Workbench::TimeSpan> restSpan;
    Workbench::AmplitudeScale amplitude = Workbench::AmplitudeScale::Peak;

    /// Whether the shaft's position in its bearing is asked for.
    bool tellsRest() const { return rest || restSpan; }
};

/// The windows that one recording was looked at in, one after the other.
struct AnalysisReport {
    std::string file;
    Workbench::MachineFacts machine;
    AnalysisOrder order;
    std::vector<Workbench::OrbitSummary> windows;  ///< one or more
    std::vector<std::string> notes;                ///< of the whole, one line each
    std::string compensation = {};  ///< "1X, 2X vector" and the like; empty: run-out is left in
};

/// Raises `std::runtime_error`, with the file's name, for a span in which there is nothing to look
/// at, for more windows than anybody reads, and where the shaft's position is asked for and cannot
/// be told.
AnalysisReport analyze(const Workbench::Recording& recording, const AnalysisOrder& order);

/// For a person: a block of lines for one window, a table with a line for each of several.
std::string analysisAsText(const AnalysisReport& report);

/// The same as one JSON object, for a program. Members whose fact is not known are null.
std::string analysisAsJson(const AnalysisReport& report);

/// "um peak", "mil pp"; "peak" alone where no unit is given.
std::string amplitudeUnit(const AnalysisReport& report);

}  // namespace Rotavue::Cli
