#pragma once

#include "workbench/bench/axis_limits.h"
#include "workbench/bench/bench.h"

#include <QObject>

#include <memory>
#include <vector>

namespace Rotavue::Workbench {

/// One scale for all planes, for as long as it is on: a limit that a user changes in one of them is
/// changed in all, as one step of undo. Planes of another unit have a scale of their own, which
/// they share. The limits reach the controls as settings do.
class ScaleLock : public QObject {
    Q_OBJECT

public:
    explicit ScaleLock(Bench& bench, QObject* parent = nullptr);

    bool isOn() const { return on_; }

    /// Turned on, all planes get the limits of `model` where these are manual, else limits that
    /// hold what each of them shows [undoable].
    void turnOn(Plane& model);

    /// Every plane keeps the limits that it has.
    void turnOff();

Q_SIGNALS:
    void changed(bool on);

    /// Somebody chose an automatic scale, which is each plane's own: the lock is off.
    void released();

private:
    using Others = std::vector<std::pair<Plane*, Settings>>;

    Others othersOf(Plane& plane, const Settings& now);
    void takePlanes();
    void takeNew();
    void spread(Plane& model, int run);
    AxisLimits commonOf(Plane& model) const;

    Bench& bench_;
    bool on_ = false;
    std::vector<std::weak_ptr<Plane>> known_;
};

}  // namespace Rotavue::Workbench
