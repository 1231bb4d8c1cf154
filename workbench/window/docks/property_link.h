#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/property_panel.h"

#include <QObject>

namespace Rotavue::Workbench {

/// Lets the property panel show the control of one plane of a bench, and makes each of its changes
/// one step of undo.
class PropertyLink final : public QObject {
public:
    /// Both must outlive this object.
    PropertyLink(Bench& bench, PropertyPanel& panel, QObject* parent = nullptr);

    /// Shows the control of that plane; null: of none.
    void setCurrent(Plane* plane);

private:
    Bench& bench_;
    PropertyPanel& panel_;
    Plane* plane_ = nullptr;
};

}  // namespace Rotavue::Workbench
