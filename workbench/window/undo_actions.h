#pragma once

#include "workbench/bench/undo_steps.h"

class QMenu;

namespace Rotavue::Workbench {

/// Adds *Undo* and *Redo* to a menu, which name the step that they take next.
void addUndoActions(QMenu& menu, UndoSteps& steps);

}  // namespace Rotavue::Workbench
