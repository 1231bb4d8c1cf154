#pragma once

#include "workbench/analysis/compensation.h"
#include "workbench/bench/bench.h"
#include "workbench/window/docks/latest_job.h"

#include <QAction>
#include <QActionGroup>
#include <QObject>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// Where the run-out of a plane is taken from, and how it is taken away: enough to do it again.
struct RunOutSource {
    CompensationForm form = CompensationForm::Vector;
    TimeSpan span = {};                                  ///< of slow roll
    std::optional<std::filesystem::path> slowRoll = {};  ///< unset: the plane's own recording
};

/// Run-out compensation in a window: takes the run-out of the current plane from the marked stretch
/// of its recording, or from a recording of slow roll, and takes it away or lets it back in. What
/// takes long is done off the window's thread; every change of a plane is undoable; what cannot be
/// done the bench reports.
class RunOutActions final : public QObject {
public:
    /// Tell which plane the user speaks of and which stretch of it is marked.
    using CurrentPlane = std::function<Plane*()>;
    using MarkedStretch = std::function<std::optional<TimeSpan>()>;

    RunOutActions(Bench& bench, CurrentPlane current, MarkedStretch marked,
                  QObject* parent = nullptr);

    QAction take;      ///< from the marked stretch; in the form that is on, vectors at first
    QAction takeFile;  ///< from a recording that the user chooses
    QAction none;      ///< lets it back in
    QAction vector;    ///< takes 1X and 2X away
    QAction waveform;  ///< takes all of it away

    /// To be called when another plane or another stretch has become the current one.
    void refresh();

    /// Takes it from all of a recording [undoable].
    void takeFrom(const std::filesystem::path& slowRoll);

    /// What is taken away of a plane, for a file that keeps it; nothing where nothing is.
    std::optional<RunOutSource> runOutOf(const Plane& plane) const;

    /// Takes it away again [undoable]. What does not work is reported, and the plane stays.
    void restore(Plane& plane, const RunOutSource& source);

private:
    struct Known {
        RunOutSource source;
        SlowRoll slowRoll;
    };
    struct Result {
        Known known;
        std::shared_ptr<const PlaneSource> shown;  ///< null where it failed
        std::string failure = {};
    };
    struct Taken {
        std::weak_ptr<const PlaneSource> shown;
        RunOutSource source;
    };
    using Maker = std::function<SlowRoll(const PlaneSource&)>;

    /// By the plane itself, not by its place in memory: that may be a later plane's.
    template <class Value>
    using OfPlane = std::map<std::weak_ptr<Plane>, Value, std::owner_less<>>;

    static Maker makerOf(const RunOutSource& source);
    static Result resultOf(const PlaneSource& original, const RunOutSource& source,
                           const Maker& make);
    std::shared_ptr<Plane> shared(const Plane* plane) const;
    CompensationForm formFor(const Plane& plane) const;
    void start(Plane& plane, const RunOutSource& source, Maker make);
    void deliver(const std::shared_ptr<Plane>& plane,
                 const std::shared_ptr<const PlaneSource>& original, const Result& result);
    void forgetGone();
    void takeMarked();
    void askForFile();
    void choose(std::optional<CompensationForm> form);

    Bench& bench_;
    CurrentPlane current_;
    MarkedStretch marked_;
    QActionGroup forms_;
    OfPlane<Known> known_;                      ///< what was taken last
    std::vector<Taken> taken_;                  ///< by what a plane shows, also after an undo
    OfPlane<std::unique_ptr<LatestJob>> jobs_;  ///< of each plane, the newest counts
};

/// How a plane is compensated, by the words that it holds; empty where it is not.
std::optional<CompensationForm> compensationOf(const Plane& plane);

}  // namespace Rotavue::Workbench
