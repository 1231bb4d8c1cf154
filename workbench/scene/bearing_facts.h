#pragma once

#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {

/// A round bearing is often told by one number: the clearance that is missing becomes the other.
void completeClearance(MachineFacts& machine);

/// The digits behind the point with which an axis that holds all samples has three that count.
int axisDecimals(const Recording& recording);

}  // namespace Rotavue::Workbench
