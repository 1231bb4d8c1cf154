#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/property_panel.h"
#include "workbench/window/docks/step_run.h"

#include <QObject>

namespace Rotavue::Workbench {

/// Lets the property panel show the control of one plane of a bench, and makes its changes steps of
/// undo: what a user does to one number in one go is one of them.
class PropertyLink final : public QObject {
public:
    /// Both must outlive this object.
    PropertyLink(Bench& bench, PropertyPanel& panel, QObject* parent = nullptr);

    /// Shows the control of that plane; null: of none.
    void setCurrent(Plane* plane);

private:
    void tellTitle();

    Bench& bench_;
    PropertyPanel& panel_;
    StepRun run_;
    Plane* plane_ = nullptr;
};

}  // namespace Rotavue::Workbench
