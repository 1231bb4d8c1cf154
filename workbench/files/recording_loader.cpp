#include "workbench/files/recording_loader.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

#include "workbench/analysis/analysis_error.h"
#include "workbench/files/import_preview.h"

namespace Rotavue::Workbench {
namespace {

constexpr int LookInterval = 10;     // ms; what is loaded shows so much later at the most
constexpr qint64 TellInterval = 50;  // ms

// How much of all is done when the file is read, and when the plane is ready for a control.
constexpr double PartOfReading = 0.7;
constexpr double PartOfPreparing = 0.9;

/// For a reading that is the stretch from one part to the other of what is watched.
ReadingWatch stretchOf(const ReadingWatch& watch, double from, double to) {
    if (!watch) return {};
    return [&watch, from, to](double part) { return watch(from + part * (to - from)); };
}

std::shared_ptr<const PlaneSource> compensatedPlane(const LoadRequest& request,
                                                    std::shared_ptr<const PlaneSource> original,
                                                    const ReadingWatch& watch) {
    try {
        return withoutRunOut(std::move(original), *request.runOut, watch);
    } catch (const AnalysisError& error) {
        throw std::runtime_error(request.file.string() + ": " + error.what());
    }
}

bool mayHoldAPlane(const std::filesystem::path& file) {
    try {
        refuseSingleProbe(previewOf(readBeginning(file)));
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

}  // namespace

std::shared_ptr<const PlaneSource> loadPlane(const LoadRequest& request,
                                             const ReadingWatch& watch) {
    Recording recording =
        readRecording(request.file, request.options, stretchOf(watch, 0.0, PartOfReading));
    if (request.isRemembered)
        recording.notes.emplace_back("read as remembered for this shape of file (Ctrl+I)");
    auto source = preparePlane(std::move(recording), request.options);
    if (request.runOut)
        source =
            compensatedPlane(request, std::move(source), stretchOf(watch, PartOfPreparing, 1.0));
    ReadingProgress(watch).reach(1.0);
    return source;
}

RecordingLoader::RecordingLoader(QObject* parent) : QObject(parent) {
    timer_.setInterval(LookInterval);
    connect(&timer_, &QTimer::timeout, this, &RecordingLoader::look);
}

RecordingLoader::~RecordingLoader() = default;

void RecordingLoader::load(LoadRequest request) {
    waiting_.push_back(std::move(request));
    if (!timer_.isActive()) beginNext();
}

// Nobody waits for the end of what is cancelled: a disk may not answer.
void RecordingLoader::cancel() {
    std::deque<LoadRequest> dropped = std::exchange(waiting_, {});
    const std::unique_ptr<Task> task = std::move(task_);
    if (task) {
        task->cancel();
        dropped.push_front(current_);
    }
    drop(std::move(dropped));
    if (task) goOn();
}

void RecordingLoader::cancelWaitingOfView() {
    const auto isOther = [](const LoadRequest& request) { return !request.isOfView; };
    const auto first = std::stable_partition(waiting_.begin(), waiting_.end(), isOther);
    std::deque<LoadRequest> dropped(first, waiting_.end());
    waiting_.erase(first, waiting_.end());
    drop(std::move(dropped));
}

void RecordingLoader::drop(std::deque<LoadRequest> requests) {
    for (; !requests.empty(); requests.pop_front())
        Q_EMIT cancelled(requests.front());
}

// The timer runs for as long as there is something to load.
void RecordingLoader::beginNext() {
    current_ = std::move(waiting_.front());
    waiting_.pop_front();
    task_ = std::make_unique<Task>(
        [request = current_](const ReadingWatch& watch) { return tryToLoad(request, watch); });
    clock_.start();
    lastTold_ = 0;
    timer_.start();
}

void RecordingLoader::look() {
    if (task_->isDone()) {
        finish();
        goOn();
    } else if (clock_.elapsed() - lastTold_ >= TellInterval) {
        lastTold_ = clock_.elapsed();
        Q_EMIT progressed(current_, task_->part(), lastTold_);
    }
}

void RecordingLoader::goOn() {
    if (!waiting_.empty()) return beginNext();
    timer_.stop();
    Q_EMIT idle();
}

// Whether an answer may help is found where the file is read: the disk may be slow.
RecordingLoader::Loaded RecordingLoader::tryToLoad(const LoadRequest& request,
                                                   const ReadingWatch& watch) {
    try {
        return {.source = loadPlane(request, watch)};
    } catch (const std::runtime_error& error) {
        return {.fault = error.what(), .mayBeTold = mayHoldAPlane(request.file)};
    }
}

void RecordingLoader::finish() {
    const std::unique_ptr<Task> task = std::move(task_);
    const LoadRequest request = std::move(current_);
    try {
        const Loaded result = task->take();
        if (result.source) return Q_EMIT loaded(request, result.source);
        Q_EMIT failed(request, QString::fromStdString(result.fault), result.mayBeTold);
    } catch (const std::bad_alloc&) {
        Q_EMIT failed(request,
                      QString::fromStdString(request.file.string()) +
                          QStringLiteral(": found more than fits into memory, allowed: a "
                                         "shorter recording"),
                      false);
    } catch (const std::exception& error) {
        Q_EMIT failed(request, QString::fromUtf8(error.what()), false);
    }
}

}  // namespace Rotavue::Workbench
