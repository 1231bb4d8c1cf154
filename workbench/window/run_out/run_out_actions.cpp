#include "workbench/window/run_out/run_out_actions.h"

#include <QKeySequence>

#include <algorithm>
#include <exception>
#include <utility>

namespace Rotavue::Workbench {

namespace {

std::shared_ptr<const PlaneSource> withoutRunOut(const PlaneSource& original,
                                                 const SlowRoll& slowRoll, CompensationForm form) {
    Recording recording = compensated(original.recording, original.track, slowRoll, form);
    recording.notes.insert(recording.notes.end(), slowRoll.notes.begin(), slowRoll.notes.end());
    return std::make_shared<const PlaneSource>(std::move(recording), original.options);
}

RunOutActions::Compensated compensatedBy(const PlaneSource& original, CompensationForm form,
                                         const RunOutActions::SlowRollMaker& make) try {
    RunOutActions::Compensated result;
    result.slowRoll = make(original);
    result.source = withoutRunOut(original, result.slowRoll, form);
    return result;
} catch (const std::exception& error) {
    return {.slowRoll = {}, .source = nullptr, .failure = error.what()};
}

}  // namespace

std::optional<CompensationForm> compensationOf(const Plane& plane) {
    for (const CompensationForm form : {CompensationForm::Vector, CompensationForm::Waveform})
        if (plane.compensation() == compensationText(form)) return form;
    return std::nullopt;
}

RunOutActions::RunOutActions(Bench& bench, CurrentPlane current, MarkedStretch marked,
                             QObject* parent)
    : QObject(parent),
      bench_(bench),
      current_(std::move(current)),
      marked_(std::move(marked)),
      forms_(this) {
    take.setObjectName("takeRunOut");
    take.setText(tr("&Take run-out from the marked stretch"));
    take.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U));
    take.setToolTip(tr("What the probes report in slow roll is run-out: mark whole turns of it"));
    none.setText(tr("&Leave run-out in"));
    vector.setText(tr("Compensate 1X and 2X &vectors"));
    waveform.setText(tr("Compensate the &waveform"));
    for (QAction* form : {&none, &vector, &waveform}) {
        form->setCheckable(true);
        forms_.addAction(form);
    }
    connect(&take, &QAction::triggered, this, [this] { takeSlowRoll(); });
    connect(&none, &QAction::triggered, this, [this] { choose(std::nullopt); });
    connect(&vector, &QAction::triggered, this, [this] { choose(CompensationForm::Vector); });
    connect(&waveform, &QAction::triggered, this, [this] { choose(CompensationForm::Waveform); });
    connect(&bench_, &Bench::curvesChanged, this, [this] { refresh(); });
    connect(&bench_, &Bench::planesChanged, this, [this] { refresh(); });
    refresh();
}

std::shared_ptr<Plane> RunOutActions::shared(const Plane* plane) const {
    const auto& planes = bench_.planes();
    const auto found = std::find_if(planes.begin(), planes.end(),
                                    [&](const auto& one) { return one.get() == plane; });
    return found == planes.end() ? nullptr : *found;
}

void RunOutActions::refresh() {
    const auto plane = shared(current_());
    const bool known = plane && known_.contains(plane.get());
    take.setEnabled(plane && marked_().has_value());
    const auto form = plane ? compensationOf(*plane) : std::nullopt;
    for (QAction* action : {&none, &vector, &waveform})
        action->setEnabled(known);
    none.setChecked(!form);
    vector.setChecked(form == CompensationForm::Vector);
    waveform.setChecked(form == CompensationForm::Waveform);
}

void RunOutActions::start(Plane& plane, CompensationForm form, SlowRollMaker make) {
    // The plane itself belongs to this thread; what the worker reads outlives it there.
    job_.start([this, place = &plane, form, make = std::move(make),
                original = plane.sharedOriginal()]() -> LatestJob::Deliver {
        const Compensated result = compensatedBy(*original, form, make);
        return [this, place, form, result] { deliver(place, form, result); };
    });
}

void RunOutActions::deliver(Plane* place, CompensationForm form, const Compensated& result) {
    const auto plane = shared(place);
    if (!plane) return;
    if (!result.source) {
        bench_.report(QString::fromStdString(plane->name() + ": " + result.failure));
        refresh();
        return;
    }
    known_[place] = result.slowRoll;
    bench_.showCompensated(*plane, result.source, compensationText(form));
    refresh();
}

void RunOutActions::takeSlowRoll() {
    Plane* const plane = current_();
    const auto stretch = marked_();
    if (plane == nullptr || !stretch) return;
    start(*plane, compensationOf(*plane).value_or(CompensationForm::Vector),
          [span = *stretch](const PlaneSource& original) {
              return Workbench::takeSlowRoll(original.recording, original.track, span);
          });
}

void RunOutActions::choose(std::optional<CompensationForm> form) {
    Plane* const plane = current_();
    if (plane == nullptr || form == compensationOf(*plane)) return;
    if (!form) {
        bench_.showOriginal(*plane);
        return;
    }
    const auto known = known_.find(plane);
    if (known == known_.end()) return;
    start(*plane, *form, [slowRoll = known->second](const PlaneSource&) { return slowRoll; });
}

std::optional<PlaneRunOut> RunOutActions::runOutOf(const Plane& plane) const {
    const auto known = known_.find(&plane);
    if (known == known_.end()) return std::nullopt;
    return PlaneRunOut{known->second, compensationOf(plane)};
}

void RunOutActions::restore(Plane& plane, const PlaneRunOut& runOut) {
    checkCompensable(plane.original().recording, runOut.slowRoll);
    known_[&plane] = runOut.slowRoll;
    if (runOut.form)
        start(plane, *runOut.form,
              [slowRoll = runOut.slowRoll](const PlaneSource&) { return slowRoll; });
    refresh();
}

}  // namespace Rotavue::Workbench
