#include "workbench/window/docks/number_link.h"

#include "workbench/analysis/short_text.h"
#include "workbench/bench/axis_limits.h"
#include "workbench/bench/undo_macro.h"
#include "workbench/scene/shown_span.h"

namespace Rotavue::Workbench {

namespace {

ShownTurns shownTurns(const Bench& bench, const Plane& plane) {
    const auto source = plane.sharedShown();
    return {.plane = QString::fromStdString(bench.titleOf(plane).text()),
            .recording = {source, &source->recording},
            .track = {source, &source->track},
            .span = stretchOf(plane.span(), source->track),
            .isAnyShown = isAnyShown(plane.span()),
            .shaftCenter = plane.curveOptions().shaftCenter};
}

QString warning(const PlaneTitle& title, const AxisLimits& limits) {
    return NumberTable::tr("%1: x spans %2 and y %3, the orbit is out of shape")
        .arg(QString::fromStdString(title.text()),
             QString::fromStdString(shortText(limits.xSpan())),
             QString::fromStdString(shortText(limits.ySpan())));
}

}  // namespace

NumberLink::NumberLink(Bench& bench, NumberTable& table, QObject* parent)
    : QObject(parent), bench_(bench), table_(table) {
    connect(&bench, &Bench::cursorMoved, this, &NumberLink::showTurns);
    connect(&bench, &Bench::planesChanged, this, &NumberLink::showTurns);
    connect(&bench, &Bench::curvesChanged, this, &NumberLink::showTurns);
    connect(&bench, &Bench::settingsChanged, this, &NumberLink::showTurns);
    // The control finds its limits while it draws; a table that is up to date comes behind that.
    connect(&table, &NumberTable::computed, this, &NumberLink::showWarnings);
    connect(&table, &NumberTable::equalSpansWanted, this, &NumberLink::makeEqual);
    showTurns();
}

void NumberLink::setCurrent(const Plane* plane) {
    current_ = plane;
    showTurns();
}

void NumberLink::showTurns() {
    std::vector<ShownTurns> turns;
    for (const auto& plane : bench_.planes()) {
        const bool first = plane.get() == current_;
        turns.insert(first ? turns.begin() : turns.end(), shownTurns(bench_, *plane));
    }
    table_.showTurns(std::move(turns));
}

void NumberLink::showWarnings() {
    std::vector<QString> warnings;
    for (const auto& plane : bench_.planes()) {
        const AxisLimits limits = axisLimits(*plane);
        if (!limits.areEqual()) warnings.push_back(warning(bench_.titleOf(*plane), limits));
    }
    table_.showScaleWarnings(warnings);
}

void NumberLink::makeEqual() {
    std::vector<Plane*> unequal;
    for (const auto& plane : bench_.planes())
        if (!axisLimits(*plane).areEqual()) unequal.push_back(plane.get());
    if (unequal.empty()) return showWarnings();
    const QString what = tr("one scale for both axes");
    {
        const UndoMacro macro(bench_.undoStack(), what);
        for (Plane* plane : unequal)
            bench_.setSettings(*plane, withEqualAxes(*plane), what);
    }
    showWarnings();
}

}  // namespace Rotavue::Workbench
