#include "workbench/window/run_out/run_out_actions.h"

#include <QFileDialog>
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
    const auto name = [this](QAction& action, const char* objectName) {
        action.setObjectName(objectName);
        action.setParent(this);
    };
    name(take, "takeRunOut");
    name(takeFile, "takeRunOutFile");
    name(none, "leaveRunOut");
    name(vector, "compensateVector");
    name(waveform, "compensateWaveform");
    take.setText(tr("&Take from the marked stretch"));
    take.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U));
    take.setToolTip(tr("What the probes report in slow roll is run-out: mark whole turns of it"));
    takeFile.setText(tr("Take from a &recording of slow roll..."));
    none.setText(tr("&Leave run-out in"));
    vector.setText(tr("Compensate 1X and 2X &vectors"));
    waveform.setText(tr("Compensate the &waveform"));
    for (QAction* form : {&none, &vector, &waveform}) {
        form->setCheckable(true);
        forms_.addAction(form);
    }
    connect(&take, &QAction::triggered, this, [this] { takeMarked(); });
    connect(&takeFile, &QAction::triggered, this, [this] { askForFile(); });
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
    const bool known = plane && known_.contains(plane);
    take.setEnabled(plane && marked_().has_value());
    takeFile.setEnabled(plane != nullptr);
    const auto form = plane ? compensationOf(*plane) : std::nullopt;
    for (QAction* action : {&none, &vector, &waveform})
        action->setEnabled(known);
    none.setChecked(!form);
    vector.setChecked(form == CompensationForm::Vector);
    waveform.setChecked(form == CompensationForm::Waveform);
}

CompensationForm RunOutActions::formFor(const Plane& plane) const {
    return compensationOf(plane).value_or(CompensationForm::Vector);
}

RunOutActions::Maker RunOutActions::makerOf(const RunOutSource& source) {
    return [source](const PlaneSource& original) {
        if (!source.slowRoll) return takeSlowRoll(original.recording, original.track, source.span);
        const Recording recording = readRecording(*source.slowRoll, original.options);
        return takeSlowRoll(recording, ShaftTrack(recording), source.span);
    };
}

RunOutActions::Result RunOutActions::resultOf(const PlaneSource& original,
                                              const RunOutSource& source, const Maker& make) {
    Result result;
    try {
        result.known = {source, make(original)};
        result.shown = withoutRunOut(original, result.known.slowRoll, source.form);
    } catch (const std::exception& error) {
        result.failure = error.what();
    }
    return result;
}

void RunOutActions::start(Plane& plane, const RunOutSource& source, Maker make) {
    forgetGone();
    const std::weak_ptr<Plane> place = shared(&plane);
    std::unique_ptr<LatestJob>& job = jobs_[place];
    if (!job) job = std::make_unique<LatestJob>();
    // The plane itself belongs to this thread; what the worker reads outlives it there.
    job->start([this, place, source, make = std::move(make),
                original = plane.sharedOriginal()]() -> LatestJob::Deliver {
        const Result result = resultOf(*original, source, make);
        return [this, place, original, result] { deliver(place.lock(), original, result); };
    });
}

/// The job of a plane that is gone may still run: it goes later.
void RunOutActions::forgetGone() {
    std::erase_if(known_, [](const auto& entry) { return entry.first.expired(); });
    std::erase_if(taken_, [](const Taken& one) { return one.shown.expired(); });
    std::erase_if(jobs_, [](const auto& entry) {
        return entry.first.expired() && !entry.second->isRunning();
    });
}

void RunOutActions::deliver(const std::shared_ptr<Plane>& plane,
                            const std::shared_ptr<const PlaneSource>& original,
                            const Result& result) {
    if (!plane || !bench_.has(*plane) || plane->sharedOriginal() != original) return;
    if (!result.shown) {
        bench_.report(QString::fromStdString(plane->name() + ": " + result.failure));
        refresh();
        return;
    }
    known_[plane] = result.known;
    taken_.push_back({result.shown, result.known.source});
    bench_.showCompensated(*plane, result.shown, compensationText(result.known.source.form));
    refresh();
}

void RunOutActions::takeMarked() {
    Plane* const plane = current_();
    const auto stretch = marked_();
    if (plane == nullptr || !stretch) return;
    const RunOutSource source{.form = formFor(*plane), .span = *stretch};
    start(*plane, source, makerOf(source));
}

void RunOutActions::askForFile() {
    const QString file = QFileDialog::getOpenFileName(
        nullptr, tr("Recording of slow roll"), {}, tr("Recordings (*.csv *.txt *.wav);;All (*)"));
    if (!file.isEmpty()) takeFrom(file.toStdString());
}

void RunOutActions::takeFrom(const std::filesystem::path& slowRoll) {
    Plane* const plane = current_();
    if (plane == nullptr) return;
    const RunOutSource source{.form = formFor(*plane), .slowRoll = slowRoll};
    start(*plane, source, makerOf(source));
}

void RunOutActions::choose(std::optional<CompensationForm> form) {
    Plane* const plane = current_();
    if (plane == nullptr || form == compensationOf(*plane)) return;
    if (!form) {
        bench_.showOriginal(*plane);
        return;
    }
    const auto known = known_.find(shared(plane));
    if (known == known_.end()) return;
    RunOutSource source = known->second.source;
    source.form = *form;
    start(*plane, source,
          [slowRoll = known->second.slowRoll](const PlaneSource&) { return slowRoll; });
}

std::optional<RunOutSource> RunOutActions::runOutOf(const Plane& plane) const {
    for (const Taken& one : taken_)
        if (one.shown.lock().get() == &plane.shown()) return one.source;
    return std::nullopt;
}

void RunOutActions::restore(Plane& plane, const RunOutSource& source) {
    start(plane, source, makerOf(source));
}

}  // namespace Rotavue::Workbench
