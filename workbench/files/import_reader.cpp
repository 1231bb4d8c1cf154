#include "workbench/files/import_reader.h"

#include <exception>
#include <optional>
#include <utility>

namespace Rotavue::Workbench {
namespace {

constexpr int LookInterval = 5;      // ms; a disk that answers does so in less
constexpr qint64 TellInterval = 50;  // ms

}  // namespace

ImportReader::ImportReader(Read read, QObject* parent) : QObject(parent), read_(std::move(read)) {
    timer_.setInterval(LookInterval);
    connect(&timer_, &QTimer::timeout, this, &ImportReader::look);
}

ImportReader::~ImportReader() = default;

void ImportReader::read(const std::filesystem::path& file, const RecordingOptions& told) {
    file_ = file;
    task_ = std::make_unique<Task>(
        [read = read_, file, told](const ReadingWatch&) { return read(file, told); });
    lastTold_ = 0;
    clock_.start();
    timer_.start();
}

void ImportReader::cancel() {
    if (!task_) return;
    timer_.stop();
    task_.reset();
    Q_EMIT cancelled();
}

void ImportReader::look() {
    if (task_->isDone()) return finish();
    if (clock_.elapsed() - lastTold_ < TellInterval) return;
    lastTold_ = clock_.elapsed();
    Q_EMIT waited(file_, lastTold_);
}

void ImportReader::finish() {
    timer_.stop();
    const std::unique_ptr<Task> task = std::move(task_);
    std::optional<ImportFacts> facts;
    try {
        facts = task->take();
    } catch (const std::exception& error) {
        return Q_EMIT failed(QString::fromUtf8(error.what()));
    }
    Q_EMIT arrived(*facts);
}

}  // namespace Rotavue::Workbench
