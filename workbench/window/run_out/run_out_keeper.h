#pragma once

#include "workbench/files/view_keeper.h"
#include "workbench/window/run_out/run_out_actions.h"

namespace Rotavue::Workbench {

/// How what the actions take away gets into a view and back. The actions must outlive it.
CompensationKeeper runOutKeeper(RunOutActions& actions);

}  // namespace Rotavue::Workbench
