#include "workbench/window/scale_lock.h"

#include <algorithm>

namespace Rotavue::Workbench {

namespace {

const std::string& unitOf(const Plane& plane) {
    return plane.original().recording.machine.unit;
}

AxisLimits joined(const AxisLimits& a, const AxisLimits& b) {
    return {.xMin = std::min(a.xMin, b.xMin),
            .xMax = std::max(a.xMax, b.xMax),
            .yMin = std::min(a.yMin, b.yMin),
            .yMax = std::max(a.yMax, b.yMax),
            .manual = true};
}

}  // namespace

ScaleLock::ScaleLock(Bench& bench, QObject* parent) : QObject(parent), bench_(bench) {
    bench_.setCompanions(
        [this](Plane& plane, const Settings& now) { return othersOf(plane, now); });
    connect(&bench_, &Bench::planesChanged, this, &ScaleLock::takePlanes);
}

void ScaleLock::turnOn(Plane& model) {
    if (on_) return;
    on_ = true;
    known_.assign(bench_.planes().begin(), bench_.planes().end());
    const int run = bench_.beginRun();
    spread(model, run);
    // Planes that the first ones left alone have another unit.
    std::vector<std::string> units{unitOf(model)};
    for (const auto& plane : known_) {
        const auto one = plane.lock();
        if (!one || std::find(units.begin(), units.end(), unitOf(*one)) != units.end()) continue;
        units.push_back(unitOf(*one));
        spread(*one, run);
    }
    Q_EMIT changed(true);
}

void ScaleLock::turnOff() {
    if (!on_) return;
    on_ = false;
    Q_EMIT changed(false);
}

void ScaleLock::spread(Plane& model, int run) {
    bench_.setSettings(model, withLimits(model, commonOf(model)), tr("one scale for all planes"),
                       run);
}

AxisLimits ScaleLock::commonOf(Plane& model) const {
    AxisLimits common = axisLimits(model);
    if (common.manual) return common;
    for (const auto& plane : bench_.planes())
        if (unitOf(*plane) == unitOf(model)) common = joined(common, axisLimits(*plane));
    return common;
}

ScaleLock::Others ScaleLock::othersOf(Plane& plane, const Settings& now) {
    if (!on_) return {};
    const AxisLimits limits = limitsIn(now);
    if (!limits.manual) {
        turnOff();
        Q_EMIT released();
        return {};
    }
    Others others;
    for (const auto& other : bench_.planes()) {
        const bool follows = other.get() != &plane && unitOf(*other) == unitOf(plane);
        if (follows && axisLimits(*other) != limits)
            others.emplace_back(other.get(), withLimits(*other, limits));
    }
    return others;
}

// This may be in the middle of an undo, when nothing new can be pushed.
void ScaleLock::takePlanes() {
    if (!on_) return;
    if (bench_.planes().empty()) return turnOff();
    QMetaObject::invokeMethod(this, &ScaleLock::takeNew, Qt::QueuedConnection);
}

/// A plane that has never been here gets the scale; one that came back by undo keeps what it had.
void ScaleLock::takeNew() {
    const auto isKnown = [this](const std::shared_ptr<Plane>& plane) {
        return std::any_of(known_.begin(), known_.end(),
                           [&](const auto& one) { return one.lock() == plane; });
    };
    const auto planes = bench_.planes();
    for (const auto& plane : planes) {
        if (!on_ || isKnown(plane)) continue;
        known_.push_back(plane);
        const auto model = std::find_if(planes.begin(), planes.end(), [&](const auto& one) {
            return one != plane && unitOf(*one) == unitOf(*plane);
        });
        spread(model == planes.end() ? *plane : **model, Bench::NoRun);
    }
}

}  // namespace Rotavue::Workbench
