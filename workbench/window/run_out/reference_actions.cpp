#include "workbench/window/run_out/reference_actions.h"

#include "workbench/analysis/reference_orbit.h"
#include "workbench/bench/source_files.h"
#include "workbench/files/usable.h"
#include "workbench/scene/shown_span.h"
#include "workbench/window/run_out/held_plane.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <exception>
#include <system_error>
#include <utility>

namespace Rotavue::Workbench {

namespace {

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

/// "1.84 to 2.00 s": to a hundredth of its length or finer.
QString spanText(const TimeSpan& span) {
    constexpr double Least = 1e-6;
    const double length = std::max(span.to - span.from, Least);
    const int digits = std::max(0, static_cast<int>(std::ceil(-std::log10(length))) + 1);
    return ReferenceActions::tr("%1 to %2 s")
        .arg(QString::number(span.from, 'f', digits), QString::number(span.to, 'f', digits));
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
    connect(&save, &QAction::triggered, this, &ReferenceActions::askForFile);
    connect(&bench_, &Bench::planesChanged, this, &ReferenceActions::refresh);
    refresh();
}

ReferenceActions::~ReferenceActions() {
    if (progress_) progress_->cancelled = true;
}

void ReferenceActions::refresh() {
    const Plane* const plane = marked_.plane();
    const bool isTurning = plane != nullptr && plane->shown().track.hasKeyphasor();
    const QString why = plane == nullptr ? tr("nothing is open")
                        : isTurning      ? tr("another one is being saved")
                                         : tr("there is no keyphasor");
    const auto stretch = marked_.stretch();
    const QString turns = stretch ? tr("of the marked stretch, %1").arg(spanText(*stretch))
                                  : tr("that are shown at the cursor");
    save.setToolTip(
        tr("The mean of the current plane's turns %1, to compare others with").arg(turns));
    setUsable(save, isTurning && !isSaving(), why);
}

std::optional<ReferenceActions::Order> ReferenceActions::order() const {
    auto plane = heldPlane(bench_, marked_.plane());
    if (!plane) return std::nullopt;
    const TimeSpan shown = stretchOf(plane->span(), plane->shown().track);
    auto name = QString::fromStdString(bench_.titleOf(*plane).text());
    return Order{std::move(plane), std::move(name), marked_.stretch().value_or(shown)};
}

// A name that the dialog hasn't seen may be that of another file.
void ReferenceActions::askForFile() {
    const auto asked = order();
    if (!asked) return;
    QString file = QFileDialog::getSaveFileName(
        &window_, tr("Save as reference"), proposedFile(*asked->plane), tr("References (*.json)"));
    if (file.isEmpty()) return;
    if (!bench_.has(*asked->plane))
        return bench_.report(tr("%1 is not open any more: no reference is saved").arg(asked->name));
    const bool named = file.endsWith(Suffix);
    if (!named) file += Suffix;
    if (!named && QFileInfo::exists(file))
        return bench_.report(tr("%1: found a file of this name, allowed: a new one").arg(file));
    keep(*asked, file.toStdString());
}

void ReferenceActions::saveTo(const std::filesystem::path& file) {
    if (const auto asked = order()) keep(*asked, file);
}

void ReferenceActions::keep(const Order& order, const std::filesystem::path& file) {
    if (isSaving()) return;
    if (isSource(bench_, file))
        return bench_.report(
            tr("%1: found a file that a plane is made from, allowed: another one").arg(text(file)));
    const auto progress = std::make_shared<Progress>();
    begin(order.name, progress);
    job_.start([this, source = order.plane->sharedShown(), name = order.name, span = order.span,
                file, progress]() -> LatestJob::Deliver {
        const Result result = resultOf(*source, span, file, *progress);
        return [this, name, file, result, progress] {
            end(progress);
            tellOf(name, file, result);
        };
    });
}

ReferenceActions::Result ReferenceActions::resultOf(const PlaneSource& source, const TimeSpan& span,
                                                    const std::filesystem::path& file,
                                                    Progress& progress) {
    const ReadingWatch watch = [&progress](double part) {
        progress.part = part;
        return !progress.cancelled;
    };
    try {
        const ReferenceOrbit reference =
            averagedReference(source.recording, source.track, span, ReadingProgress(watch));
        saveReference(reference, file);
        return {.turns = reference.orbit.averages, .span = reference.orbit.span};
    } catch (const ReadingCancelled&) {
        return {};
    } catch (const std::exception& error) {
        return {.failure = error.what()};
    }
}

// Once it is cancelled the next one may begin; what is still being made ends by itself.
void ReferenceActions::begin(const QString& name, const std::shared_ptr<Progress>& progress) {
    progress_ = progress;
    work_ = bench_.beginWork({.what = tr("the reference of %1").arg(name),
                              .part = [progress] { return progress->part.load(); },
                              .cancel =
                                  [here = QPointer(this), progress] {
                                      progress->cancelled = true;
                                      if (here) here->end(progress);
                                  }});
    refresh();
}

void ReferenceActions::end(const std::shared_ptr<Progress>& progress) {
    if (progress_ != progress) return;
    progress_.reset();
    bench_.endWork(work_);
    refresh();
}

// What was kept is told, even if the user let go of it a moment too late.
void ReferenceActions::tellOf(const QString& name, const std::filesystem::path& file,
                              const Result& result) {
    if (!result.failure.empty())
        return bench_.report(name + QStringLiteral(": ") + QString::fromStdString(result.failure));
    if (result.turns == 0) return;
    const QString mean =
        result.turns == 1 ? tr("one turn") : tr("the mean of %1 turns").arg(result.turns);
    tell_(tr("Saved %1, %2, of %3 as %4").arg(mean, spanText(result.span), name, text(file)));
}

}  // namespace Rotavue::Workbench
