#include "workbench/files/unsaved_views.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace Rotavue::Workbench {
namespace {

constexpr int MostWindows = 1000;

QString lockOf(const QString& file) {
    return file + QStringLiteral(".lock");
}

/// A lock is old when its process is gone, however long ago it was made.
std::unique_ptr<QLockFile> lockFor(const QString& file) {
    auto lock = std::make_unique<QLockFile>(lockOf(file));
    lock->setStaleLockTime(0);
    return lock;
}

/// What a process left that was killed while it wrote. For the owner of the lock.
void removeParts(const QString& file) {
    const QFileInfo info(file);
    QDir folder = info.dir();
    for (const QString& part : folder.entryList({info.fileName() + ".part*"}, QDir::Files))
        folder.remove(part);
}

}  // namespace

UnsavedViews::UnsavedViews(QString folder) : folder_(std::move(folder)) {}

std::vector<UnsavedViews::Left> UnsavedViews::takeLeft() const {
    std::vector<Left> left;
    const QDir folder(folder_);
    for (const QFileInfo& info : folder.entryInfoList({"*.rotavue"}, QDir::Files, QDir::Time)) {
        auto lock = lockFor(info.filePath());
        if (!lock->tryLock(0)) continue;
        left.push_back(
            {info.filePath(), info.lastModified().toString("yyyy-MM-dd HH:mm"), std::move(lock)});
    }
    return left;
}

void UnsavedViews::drop(Left left) {
    removeParts(left.file);
    QFile::remove(left.file);
}

// The lock comes before the file, so that nobody takes it for one that was left behind.
void UnsavedViews::claimFile() {
    QDir().mkpath(folder_);
    for (int number = 1; number <= MostWindows && !lock_; ++number) {
        const QString file =
            QDir(folder_).filePath(QStringLiteral("window-%1.rotavue").arg(number));
        auto lock = lockFor(file);
        // A view that a crash left stays until a user has been asked about it.
        if (!lock->tryLock(0) || QFileInfo::exists(file)) continue;
        removeParts(file);
        file_ = file;
        lock_ = std::move(lock);
    }
}

void UnsavedViews::keep(const View& view) {
    if (!lock_) claimFile();
    if (lock_) writeView(file_.toStdString(), view);
}

void UnsavedViews::forget() {
    if (!lock_) return;
    QFile::remove(file_);
    lock_.reset();
}

}  // namespace Rotavue::Workbench
