#pragma once

#include <map>
#include <string>

#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// What a host channel says about its bearing, as the control reads it: the angles of the probes
/// and of the keyphasor, the clearance where it is given, and the direction where it is given
/// ("CCW" or "CW"; the control takes an unset one for clockwise). Raw and derived channels of one
/// recording must agree in all of these to the last character, or the control draws none of them:
/// this is the one place that writes them. Numbers are the shortest decimal text, always with a
/// point, which is all that the control reads in angles.
std::map<std::wstring, std::wstring> bearingProperties(const MachineFacts& machine);

}  // namespace Rotavue::Workbench
