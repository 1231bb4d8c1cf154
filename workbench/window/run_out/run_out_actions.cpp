#include "workbench/window/run_out/run_out_actions.h"

#include "workbench/files/usable.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QWidget>

#include <algorithm>
#include <exception>
#include <utility>

namespace Rotavue::Workbench {

std::optional<CompensationForm> compensationOf(const Plane& plane) {
    const auto& runOut = plane.shown().runOut;
    return runOut ? std::optional(runOut->source.form) : std::nullopt;
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
    take.setToolTip(tr("What the probes report in slow roll is run-out: mark whole turns of it") +
                    " (" + take.shortcut().toString(QKeySequence::NativeText) + ')');
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
    for (const auto& one : bench_.planes())
        if (one->shown().runOut) known_[one] = one->shown().runOut;
    const auto plane = shared(current_());
    const bool known = plane && known_.contains(plane);
    const QString nothing = tr("nothing is open");
    setUsable(take, plane && marked_().has_value(),
              plane ? tr("no stretch is marked in the waveforms") : nothing);
    setUsable(takeFile, plane != nullptr, nothing);
    const auto form = plane ? compensationOf(*plane) : std::nullopt;
    for (QAction* action : {&none, &vector, &waveform})
        setUsable(*action, known, tr("no run-out of this plane has been taken"));
    none.setChecked(!form);
    vector.setChecked(form == CompensationForm::Vector);
    waveform.setChecked(form == CompensationForm::Waveform);
}

CompensationForm RunOutActions::formFor(const Plane& plane) const {
    return compensationOf(plane).value_or(CompensationForm::Vector);
}

RunOutActions::Result RunOutActions::resultOf(const Source& original, const Maker& make) {
    try {
        return {.left = make(original)};
    } catch (const std::exception& error) {
        return {.left = nullptr, .failure = error.what()};
    }
}

void RunOutActions::start(Plane& plane, Maker make) {
    forgetGone();
    const std::weak_ptr<Plane> place = shared(&plane);
    std::unique_ptr<LatestJob>& job = jobs_[place];
    if (!job) job = std::make_unique<LatestJob>();
    // The plane itself belongs to this thread; what the worker reads outlives it there.
    job->start([this, place, make = std::move(make),
                original = plane.sharedOriginal()]() -> LatestJob::Deliver {
        const Result result = resultOf(original, make);
        return [this, place, original, result] { deliver(place.lock(), original, result); };
    });
}

void RunOutActions::find(Plane& plane, const RunOutSource& source) {
    start(plane, [source](const Source& original) {
        return withoutRunOut(original, source, findRunOut(*original, source));
    });
}

/// The job of a plane that is gone may still run: it goes later.
void RunOutActions::forgetGone() {
    std::erase_if(known_, [](const auto& entry) { return entry.first.expired(); });
    std::erase_if(jobs_, [](const auto& entry) {
        return entry.first.expired() && !entry.second->isRunning();
    });
}

void RunOutActions::deliver(const std::shared_ptr<Plane>& plane, const Source& original,
                            const Result& result) {
    if (!plane || !bench_.has(*plane) || plane->sharedOriginal() != original) return;
    if (result.left) {
        bench_.showCompensated(*plane, result.left);
    } else {
        bench_.report(QString::fromStdString(plane->name() + ": " + result.failure));
    }
    refresh();
}

void RunOutActions::takeMarked() {
    Plane* const plane = current_();
    const auto stretch = marked_();
    if (plane == nullptr || !stretch) return;
    find(*plane, {.form = formFor(*plane), .span = *stretch});
}

void RunOutActions::askForFile() {
    const Plane* const plane = current_();
    if (plane == nullptr) return;
    const QString beside =
        QFileInfo(QString::fromStdString(plane->original().recording.file.string())).absolutePath();
    const QString file =
        QFileDialog::getOpenFileName(qobject_cast<QWidget*>(parent()), tr("Recording of slow roll"),
                                     folder_.isEmpty() ? beside : folder_,
                                     tr("Recordings (*.csv *.txt *.tsv *.wav);;All files (*)"));
    if (file.isEmpty()) return;
    folder_ = QFileInfo(file).absolutePath();
    takeFrom(file.toStdString());
}

void RunOutActions::takeFrom(const std::filesystem::path& slowRoll) {
    Plane* const plane = current_();
    if (plane == nullptr) return;
    find(*plane, {.form = formFor(*plane), .slowRoll = slowRoll});
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
    start(*plane, [form = *form, runOut = known->second](const Source& original) {
        RunOutSource source = runOut->source;
        source.form = form;
        return withoutRunOut(original, std::move(source), runOut->slowRoll);
    });
}

}  // namespace Rotavue::Workbench
