#include "workbench/window/run_out/run_out_actions.h"

#include "workbench/files/usable.h"
#include "workbench/window/run_out/held_plane.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QPointer>
#include <QWidget>

#include <exception>
#include <utility>

namespace Rotavue::Workbench {

std::optional<CompensationForm> compensationOf(const Plane& plane) {
    const auto& runOut = plane.shown().runOut;
    return runOut ? std::optional(runOut->source.form) : std::nullopt;
}

RunOutActions::RunOutActions(Bench& bench, MarkedPlane marked, QObject* parent)
    : QObject(parent), bench_(bench), marked_(std::move(marked)), forms_(this) {
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

RunOutActions::~RunOutActions() {
    for (auto& entry : works_)
        entry.second.progress->cancelled = true;
}

std::shared_ptr<Plane> RunOutActions::shared(const Plane* plane) const {
    return heldPlane(bench_, plane);
}

void RunOutActions::refresh() {
    forgetGone();
    for (const auto& one : bench_.planes())
        if (const auto& taken = one->shown().runOut) known_[one] = {taken->source, taken->slowRoll};
    const auto plane = shared(marked_.plane());
    const bool known = plane && known_.contains(plane);
    const QString nothing = tr("nothing is open");
    setUsable(take, plane && marked_.stretch().has_value(),
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

RunOutActions::Result RunOutActions::resultOf(const Source& original, const Maker& make,
                                              Progress& progress) {
    const ReadingWatch watch = [&progress](double part) {
        progress.part = part;
        return !progress.cancelled;
    };
    try {
        Source left = make(original, watch);
        return progress.cancelled ? Result{} : Result{.left = std::move(left)};
    } catch (const ReadingCancelled&) {
        return {};
    } catch (const std::exception& error) {
        return {.left = nullptr, .failure = error.what()};
    }
}

void RunOutActions::start(Plane& plane, Maker make) {
    const std::weak_ptr<Plane> place = shared(&plane);
    cancel(plane);
    Work& work = works_[place];
    work.progress = std::make_shared<Progress>();
    const auto progress = work.progress;
    const int number = work.number = bench_.beginWork(
        {.what = tr("%1 without run-out").arg(QString::fromStdString(bench_.titleOf(plane).text())),
         .part = [progress] { return progress->part.load(); },
         .cancel =
             [actions = QPointer(this), progress] {
                 progress->cancelled = true;
                 if (actions) actions->refresh();
             }});
    // The plane itself belongs to this thread; what the worker reads outlives it there.
    work.job->start([this, place, make = std::move(make), progress, number,
                     original = plane.sharedOriginal()]() -> LatestJob::Deliver {
        const Result result = resultOf(original, make, *progress);
        return [this, place, original, result, progress, number] {
            bench_.endWork(number);
            if (!progress->cancelled) deliver(place.lock(), original, result);
        };
    });
}

void RunOutActions::find(Plane& plane, const RunOutSource& source) {
    start(plane, [source](const Source& original, const ReadingWatch& watch) {
        return withoutRunOut(original, source, findRunOut(*original, source, watch));
    });
}

/// Shows what was made before in the same way, where a step of undo or the plane still has it: the
/// samples are as many as the recording's, and each copy of them would stay in the undo.
bool RunOutActions::showMade(Plane& plane, const RunOutSource& source) {
    const auto made = made_.find(shared(&plane));
    if (made == made_.end()) return false;
    for (const auto& one : made->second) {
        const Source left = one.lock();
        if (!left || left->runOut->source != source) continue;
        if (left->runOut->original != plane.sharedOriginal()) continue;
        cancel(plane);
        if (plane.sharedShown() != left) bench_.showCompensated(plane, left);
        return true;
    }
    return false;
}

/// What is still being made for a plane is no longer wanted; whatever is wished next wins.
void RunOutActions::cancel(const Plane& plane) {
    const auto found = works_.find(shared(&plane));
    if (found == works_.end() || !found->second.job->isRunning()) return;
    const Work& work = found->second;
    work.job->forget();
    work.progress->cancelled = true;
    bench_.endWork(work.number);
}

/// The job of a plane that is gone may still run: it goes later.
void RunOutActions::forgetGone() {
    std::erase_if(made_, [](const auto& entry) { return entry.first.expired(); });
    for (auto& entry : made_)
        std::erase_if(entry.second, [](const auto& one) { return one.expired(); });
    std::erase_if(known_, [](const auto& entry) { return entry.first.expired(); });
    std::erase_if(works_, [](const auto& entry) {
        return entry.first.expired() && !entry.second.job->isRunning();
    });
}

void RunOutActions::deliver(const std::shared_ptr<Plane>& plane, const Source& original,
                            const Result& result) {
    if (!plane || !bench_.has(*plane) || plane->sharedOriginal() != original) return;
    if (result.left) {
        made_[plane].push_back(result.left);
        bench_.showCompensated(*plane, result.left);
    } else {
        bench_.report(
            QString::fromStdString(bench_.titleOf(*plane).text() + ": " + result.failure));
    }
    refresh();
}

void RunOutActions::takeMarked() {
    Plane* const plane = marked_.plane();
    const auto stretch = marked_.stretch();
    if (plane == nullptr || !stretch) return;
    const RunOutSource source{.form = formFor(*plane), .span = *stretch};
    if (!showMade(*plane, source)) find(*plane, source);
}

void RunOutActions::askForFile() {
    const auto plane = shared(marked_.plane());
    if (!plane) return;
    const auto name = QString::fromStdString(bench_.titleOf(*plane).text());
    const QString beside =
        QFileInfo(QString::fromStdString(plane->original().recording.file.string())).absolutePath();
    const QString file =
        QFileDialog::getOpenFileName(qobject_cast<QWidget*>(parent()), tr("Recording of slow roll"),
                                     folder_.isEmpty() ? beside : folder_,
                                     tr("Recordings (*.csv *.txt *.tsv *.wav);;All files (*)"));
    if (file.isEmpty()) return;
    folder_ = QFileInfo(file).absolutePath();
    if (!bench_.has(*plane))
        return bench_.report(tr("%1 is not open any more: no run-out is taken off").arg(name));
    find(*plane, {.form = formFor(*plane), .slowRoll = file.toStdString()});
}

void RunOutActions::takeFrom(const std::filesystem::path& slowRoll) {
    Plane* const plane = marked_.plane();
    if (plane == nullptr) return;
    find(*plane, {.form = formFor(*plane), .slowRoll = slowRoll});
}

void RunOutActions::choose(std::optional<CompensationForm> form) {
    Plane* const plane = marked_.plane();
    if (plane == nullptr) return;
    cancel(*plane);
    if (form == compensationOf(*plane)) return refresh();
    if (!form) return bench_.showOriginal(*plane);
    const auto known = known_.find(shared(plane));
    if (known == known_.end()) return refresh();
    Known runOut = known->second;
    runOut.source.form = *form;
    if (showMade(*plane, runOut.source)) return;
    start(*plane, [runOut](const Source& original, const ReadingWatch& /*watch*/) {
        return withoutRunOut(original, runOut.source, runOut.slowRoll);
    });
}

}  // namespace Rotavue::Workbench
