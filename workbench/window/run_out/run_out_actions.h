#pragma once

#include "workbench/bench/bench.h"
#include "workbench/bench/run_out.h"
#include "workbench/window/run_out/marked_plane.h"

#include <QAction>
#include <QActionGroup>
#include <QObject>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// Run-out compensation in a window: takes the run-out of the current plane from the marked stretch
/// of its recording, or from a recording of slow roll, and takes it away or lets it back in. What
/// takes long is done off the window's thread, as work that the bench tells of and cancels; every
/// change of a plane is undoable; what cannot be done the bench reports.
class RunOutActions final : public QObject {
public:
    RunOutActions(Bench& bench, MarkedPlane marked, QObject* parent = nullptr);

    QAction take;      ///< from the marked stretch; in the form that is on, vectors at first
    QAction takeFile;  ///< from a recording that the user chooses
    QAction none;      ///< lets it back in
    QAction vector;    ///< takes 1X and 2X away
    QAction waveform;  ///< takes all of it away

    ~RunOutActions() override;

    /// To be called when another plane or another stretch has become the current one.
    void refresh();

    /// Takes it from all of a recording [undoable].
    void takeFrom(const std::filesystem::path& slowRoll);

private:
    using Source = std::shared_ptr<const PlaneSource>;

    /// Makes what is left of an original, off the window's thread.
    using Maker = std::function<Source(const Source& original, const ReadingWatch& watch)>;

    /// Enough to take it off again, without the recordings that it was of.
    struct Known {
        RunOutSource source;
        SlowRoll slowRoll;
    };

    /// By the plane itself, not by its place in memory: that may be a later plane's.
    template <class Value>
    using OfPlane = std::map<std::weak_ptr<Plane>, Value, std::owner_less<>>;

    std::shared_ptr<Plane> shared(const Plane* plane) const;
    CompensationForm formFor(const Plane& plane) const;
    void start(Plane& plane, Maker make);
    void find(Plane& plane, const RunOutSource& source);
    void takeLeft(const std::weak_ptr<Plane>& place, const Source& original, const Source& left);
    void tellOf(const std::weak_ptr<Plane>& place, const std::string& failure);
    bool showMade(Plane& plane, const RunOutSource& source);
    void cancel(const Plane& plane);
    void forgetGone();
    void takeMarked();
    void askForFile();
    void choose(std::optional<CompensationForm> form);

    QPointer<Bench> bench_;
    MarkedPlane marked_;
    QActionGroup forms_;
    QString folder_;        ///< of the last recording of slow roll; empty: beside the plane's
    OfPlane<Known> known_;  ///< what was taken off last
    OfPlane<int> works_;    ///< the number of each plane's among the bench's work
    OfPlane<std::vector<std::weak_ptr<const PlaneSource>>> made_;  ///< what undo may still hold
};

/// How a plane is compensated; empty where it is not.
std::optional<CompensationForm> compensationOf(const Plane& plane);

}  // namespace Rotavue::Workbench
