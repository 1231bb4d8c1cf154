#include "workbench/window/run_out/reference_actions.h"

#include "workbench/analysis/reference_orbit.h"
#include "workbench/bench/source_files.h"
#include "workbench/files/usable.h"
#include "workbench/recording/recording_error.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <exception>
#include <system_error>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr std::chrono::milliseconds TickLength{20};
constexpr qint64 ShownAfter = 500;  // ms
const QString Suffix = QStringLiteral(".json");

QString text(const std::filesystem::path& file) {
    return QString::fromStdString(file.string());
}

bool isSame(const std::filesystem::path& one, const std::filesystem::path& other) {
    std::error_code fault;
    return one == other || std::filesystem::equivalent(one, other, fault);
}

bool isSource(const Bench& bench, const std::filesystem::path& file) {
    const auto sources = sourceFiles(bench);
    return std::any_of(sources.begin(), sources.end(),
                       [&](const auto& source) { return isSame(source, file); });
}

/// Beside the recording, named after it.
QString proposedFile(const Plane& plane) {
    const auto recording = std::filesystem::absolute(plane.original().recording.file);
    const QString name = text(recording.stem()) + ReferenceActions::tr(" reference") + Suffix;
    return QDir(text(recording.parent_path())).filePath(name);
}

}  // namespace

ReferenceActions::ReferenceActions(Bench& bench, MarkedPlane marked, Tell tell, QWidget& window)
    : QObject(&window),
      bench_(bench),
      marked_(std::move(marked)),
      tell_(std::move(tell)),
      window_(window) {
    save.setParent(this);
    save.setObjectName("saveReference");
    save.setText(tr("Save as re&ference..."));
    save.setToolTip(
        tr("The mean of the current plane's turns, of the marked stretch if there is "
           "one, to compare others with"));
    connect(&save, &QAction::triggered, this, &ReferenceActions::askForFile);
    tick_.setInterval(TickLength);
    connect(&tick_, &QTimer::timeout, this, &ReferenceActions::look);
    connect(&bench_, &Bench::planesChanged, this, &ReferenceActions::refresh);
    refresh();
}

ProgressRow* ReferenceActions::makeBar(QWidget* parent) {
    bar_ = new ProgressRow(QStringLiteral("reference"), tr("Keep no reference"), parent);
    connect(bar_, &ProgressRow::cancelled, this, &ReferenceActions::endProgress);
    return bar_;
}

void ReferenceActions::refresh() {
    const Plane* const plane = marked_.plane();
    const bool isTurning = plane != nullptr && plane->shown().track.hasKeyphasor();
    const QString why = plane == nullptr ? tr("nothing is open")
                        : isTurning      ? tr("another one is being saved")
                                         : tr("there is no keyphasor");
    setUsable(save, isTurning && !isSaving(), why);
}

// A name that the dialog hasn't seen may be that of another file.
void ReferenceActions::askForFile() {
    const Plane* const plane = marked_.plane();
    if (plane == nullptr) return;
    QString file = QFileDialog::getSaveFileName(&window_, tr("Save as reference"),
                                                proposedFile(*plane), tr("References (*.json)"));
    if (file.isEmpty()) return;
    const bool named = file.endsWith(Suffix);
    if (!named) file += Suffix;
    if (!named && QFileInfo::exists(file))
        return bench_.report(tr("%1: found a file of this name, allowed: a new one").arg(file));
    saveTo(file.toStdString());
}

void ReferenceActions::saveTo(const std::filesystem::path& file) {
    const Plane* const plane = marked_.plane();
    if (plane == nullptr || isSaving()) return;
    if (isSource(bench_, file))
        return bench_.report(
            tr("%1: found a file that a plane is made from, allowed: another one").arg(text(file)));
    plane_ = QString::fromStdString(bench_.titleOf(*plane).text());
    file_ = file;
    const TimeSpan span = marked_.stretch().value_or(TimeSpan{});
    task_ = std::make_unique<Task>(
        [source = plane->sharedShown(), span, file](const ReadingWatch& watch) {
            const ReferenceOrbit reference =
                averagedReference(source->recording, source->track, span, ReadingProgress(watch));
            saveReference(reference, file);
            return reference.orbit.averages;
        });
    clock_.start();
    tick_.start();
    refresh();
}

void ReferenceActions::look() {
    if (task_->isDone()) return finish();
    if (!bar_) return;
    bar_->tell(tr("Saving the reference of %1").arg(plane_), task_->part());
    if (clock_.elapsed() >= ShownAfter) bar_->show();
}

void ReferenceActions::finish() {
    const std::unique_ptr<Task> task = std::move(task_);
    endProgress();
    try {
        const int turns = task->take();
        const QString mean = turns == 1 ? tr("one turn") : tr("the mean of %1 turns").arg(turns);
        tell_(tr("Saved %1 as %2").arg(mean, text(file_)));
    } catch (const std::exception& error) {
        bench_.report(plane_ + QStringLiteral(": ") + QString::fromUtf8(error.what()));
    }
}

// What is still being made ends by itself; its file is whole or not there.
void ReferenceActions::endProgress() {
    task_.reset();
    tick_.stop();
    if (bar_) bar_->hide();
    refresh();
}

}  // namespace Rotavue::Workbench
