#pragma once

#include "workbench/analysis/compensation.h"
#include "workbench/bench/bench.h"
#include "workbench/window/docks/latest_job.h"

#include <QAction>
#include <QActionGroup>
#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

/// The run-out that is known of a plane, and whether it is taken away.
struct PlaneRunOut {
    SlowRoll slowRoll;
    std::optional<CompensationForm> form;  ///< empty: it stays in
};

/// Run-out compensation in a window: takes the run-out of the current plane from the marked stretch
/// of its recording, and takes it away or lets it back in. What takes long is done off the window's
/// thread; every change of a plane is undoable; what cannot be done the bench reports.
class RunOutActions final : public QObject {
public:
    /// Tell which plane the user speaks of and which stretch of it is marked.
    using CurrentPlane = std::function<Plane*()>;
    using MarkedStretch = std::function<std::optional<TimeSpan>()>;

    /// Gives the slow roll of a plane, on a worker. Raises `AnalysisError`.
    using SlowRollMaker = std::function<SlowRoll(const PlaneSource&)>;

    /// What a worker has made of a plane's recording.
    struct Compensated {
        SlowRoll slowRoll;
        std::shared_ptr<const PlaneSource> source;  ///< null where it failed
        std::string failure = {};
    };

    RunOutActions(Bench& bench, CurrentPlane current, MarkedStretch marked,
                  QObject* parent = nullptr);

    QAction take;      ///< the run-out from the marked stretch; as vectors, unless it was waveform
    QAction none;      ///< lets it back in
    QAction vector;    ///< takes 1X and 2X away
    QAction waveform;  ///< takes all of it away

    /// To be called when another plane or another stretch has become the current one.
    void refresh();

    /// What is known of a plane, for a file that keeps it.
    std::optional<PlaneRunOut> runOutOf(const Plane& plane) const;

    /// The same from a file [undoable where the plane's picture changes]. Raises `AnalysisError`
    /// for the run-out of another bearing.
    void restore(Plane& plane, const PlaneRunOut& runOut);

private:
    std::shared_ptr<Plane> shared(const Plane* plane) const;
    void takeSlowRoll();
    void start(Plane& plane, CompensationForm form, SlowRollMaker make);
    void deliver(Plane* place, CompensationForm form, const Compensated& result);
    void choose(std::optional<CompensationForm> form);

    Bench& bench_;
    CurrentPlane current_;
    MarkedStretch marked_;
    QActionGroup forms_;
    std::map<const Plane*, SlowRoll> known_;
    LatestJob job_;
};

/// How a plane is compensated, by the words that it holds; empty where it is not.
std::optional<CompensationForm> compensationOf(const Plane& plane);

}  // namespace Rotavue::Workbench
