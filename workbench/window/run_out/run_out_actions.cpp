#include "workbench/window/run_out/run_out_actions.h"

#include "workbench/bench/bench_task.h"
#include "workbench/files/usable.h"
#include "workbench/window/run_out/held_plane.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeySequence>
#include <QWidget>

#include <utility>

namespace Rotavue::Workbench {

std::optional<CompensationForm> compensationOf(const Plane& plane) {
    const auto& runOut = plane.shown().runOut;
    return runOut ? std::optional(runOut->source.form) : std::nullopt;
}

RunOutActions::RunOutActions(Bench& bench, MarkedPlane marked, QObject* parent)
    : QObject(parent), bench_(&bench), marked_(std::move(marked)), forms_(this) {
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
    connect(&bench, &Bench::curvesChanged, this, [this] { refresh(); });
    connect(&bench, &Bench::planesChanged, this, [this] { refresh(); });
    refresh();
}

/// The window's bench goes before its actions.
RunOutActions::~RunOutActions() {
    if (!bench_) return;
    for (const auto& entry : works_)
        bench_->endWork(entry.second);
}

std::shared_ptr<Plane> RunOutActions::shared(const Plane* plane) const {
    return heldPlane(*bench_, plane);
}

void RunOutActions::refresh() {
    forgetGone();
    for (const auto& one : bench_->planes())
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

// The plane itself belongs to this thread; what the worker reads outlives it there.
void RunOutActions::start(Plane& plane, Maker make) {
    const std::weak_ptr<Plane> place = shared(&plane);
    const Source original = plane.sharedOriginal();
    cancel(plane);
    bench_->steps().cancel();
    works_[place] = beginTask<Source>(
        *bench_,
        {.what =
             tr("%1 without run-out").arg(QString::fromStdString(bench_->titleOf(plane).text())),
         .make = [make = std::move(make),
                  original](const ReadingWatch& watch) { return make(original, watch); },
         .done = [this, place, original](const Source& left) { takeLeft(place, original, left); },
         .failed = [this, place](const std::string& why) { tellOf(place, why); },
         .cancelled = [this] { refresh(); }});
}

void RunOutActions::find(Plane& plane, const RunOutSource& source) {
    start(plane, [source](const Source& original, const ReadingWatch& watch) {
        return withoutRunOut(original, source, watch);
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
        // It may be about to go, by a step of undo that waits.
        bench_->steps().cancel();
        if (plane.sharedShown() != left) bench_->showCompensated(plane, left);
        return true;
    }
    return false;
}

/// What is still being made for a plane is no longer wanted; whatever is wished next wins.
void RunOutActions::cancel(const Plane& plane) {
    const auto found = works_.find(shared(&plane));
    if (found == works_.end()) return;
    bench_->endWork(found->second);
    works_.erase(found);
}

void RunOutActions::forgetGone() {
    const auto isGone = [](const auto& entry) { return entry.first.expired(); };
    std::erase_if(made_, isGone);
    for (auto& entry : made_)
        std::erase_if(entry.second, [](const auto& one) { return one.expired(); });
    std::erase_if(known_, isGone);
    for (const auto& entry : works_)
        if (isGone(entry)) bench_->endWork(entry.second);
    std::erase_if(works_, isGone);
}

void RunOutActions::takeLeft(const std::weak_ptr<Plane>& place, const Source& original,
                             const Source& left) {
    const auto plane = place.lock();
    if (!plane || !bench_->has(*plane) || plane->sharedOriginal() != original) return;
    made_[plane].push_back(left);
    bench_->showCompensated(*plane, left);
    refresh();
}

void RunOutActions::tellOf(const std::weak_ptr<Plane>& place, const std::string& failure) {
    const auto plane = place.lock();
    if (!plane || !bench_->has(*plane)) return;
    bench_->report(QString::fromStdString(bench_->titleOf(*plane).text() + ": " + failure));
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
    const auto name = QString::fromStdString(bench_->titleOf(*plane).text());
    const QString beside =
        QFileInfo(QString::fromStdString(plane->original().recording.file.string())).absolutePath();
    const QString file =
        QFileDialog::getOpenFileName(qobject_cast<QWidget*>(parent()), tr("Recording of slow roll"),
                                     folder_.isEmpty() ? beside : folder_,
                                     tr("Recordings (*.csv *.txt *.tsv *.wav);;All files (*)"));
    if (file.isEmpty()) return;
    folder_ = QFileInfo(file).absolutePath();
    if (!bench_->has(*plane))
        return bench_->report(tr("%1 is not open any more: no run-out is taken off").arg(name));
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
    bench_->steps().cancel();
    if (form == compensationOf(*plane)) return refresh();
    if (!form) return bench_->showOriginal(*plane);
    const auto known = known_.find(shared(plane));
    if (known == known_.end()) return refresh();
    Known runOut = known->second;
    runOut.source.form = *form;
    if (showMade(*plane, runOut.source)) return;
    start(*plane, [runOut](const Source& original, const ReadingWatch& watch) {
        return withoutRunOut(original, runOut.source, runOut.slowRoll, watch);
    });
}

}  // namespace Rotavue::Workbench
