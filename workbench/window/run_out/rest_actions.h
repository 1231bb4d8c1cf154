#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/run_out/marked_plane.h"

#include <QAction>
#include <QObject>

namespace Rotavue::Workbench {

/// Where the shaft rests, for the history of its centre: takes the mean gap of the marked stretch
/// for the bottom or the centre of the clearance, and shows the shaft's centre against it. Each
/// is one step of undo; what cannot be done the bench reports.
class RestActions final : public QObject {
public:
    RestActions(Bench& bench, MarkedPlane marked, QObject* parent = nullptr);

    QAction atBottom;  ///< a horizontal machine
    QAction atCentre;  ///< a vertical one
    QAction forget;    ///< the gaps of the recording count again as they are

    /// To be called when another plane or another stretch has become the current one.
    void refresh();

private:
    void enable(QAction& action, RestPosition rest);
    void take(RestPosition rest);
    void drop();

    Bench& bench_;
    MarkedPlane marked_;
};

}  // namespace Rotavue::Workbench
