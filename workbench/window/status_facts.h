#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/orbit_tiles.h"
#include "workbench/window/steady_label.h"

#include <QToolButton>

class QStatusBar;

namespace Rotavue::Workbench {

/// What stands at the right of the status bar: place in time, speed, sample rate, frames that came
/// late, and whether one micrometre is as long one way as the other.
class StatusFacts : public QObject {
    Q_OBJECT

public:
    /// The bar owns the labels, the caller this object.
    StatusFacts(Bench& bench, OrbitTiles& tiles, QStatusBar& bar);

    /// Gives both axes the scale of the one that reaches further. False where they have one
    /// already.
    bool makeEqual();

private:
    void tell();
    void tellScale(Plane& plane);

    Bench& bench_;
    OrbitTiles& tiles_;
    SteadyLabel* place_;
    SteadyLabel* speed_;
    SteadyLabel* rate_;
    SteadyLabel* dropped_;
    QToolButton* scale_;
};

}  // namespace Rotavue::Workbench
