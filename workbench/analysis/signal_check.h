#pragma once

#include <string>
#include <vector>

#include "workbench/analysis/field_vector.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// What makes a probe's signal doubtful, one line each; empty for a sound recording. Nothing is
/// refused on these grounds: an orbit from such a signal is drawn as it is, with the line beside
/// it.
///
///   stands still   all values are equal
///   is clipped     a hundredth of the values or more lie exactly at the largest (or smallest) one,
///                  runs of four and more among them, and at least eight times as many as at the
///                  next value: a converter or driver at its limit. The rounded crest of a coarsely
///                  digitised sine has no more than about 2.4 times as many.
///   has gaps       how much of the recording is missing
std::vector<std::string> checkProbes(const Recording& recording);

/// A line that says so if 1X runs against the rotation: on a machine driven by unbalance, this
/// means that the probes were swapped, one was reversed, or the rotation was entered the wrong way.
std::vector<std::string> checkPrecession(const OrderVectors& first, const MachineFacts& machine);

}  // namespace Rotavue::Workbench
