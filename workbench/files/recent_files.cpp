#include "workbench/files/recent_files.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace Rotavue::Workbench {
namespace {

const QString FilesKey = QStringLiteral("files/recent");
const QString FolderKey = QStringLiteral("files/folder");

}  // namespace

// What stands in the settings may be of another hand: empty texts and what is too many are left.
QStringList RecentFiles::files() const {
    QStringList files = settings_.value(FilesKey).toStringList();
    files.removeAll(QString());
    files.removeDuplicates();
    return files.mid(0, MostFiles);
}

void RecentFiles::add(const QString& file) {
    const QString path = QDir::cleanPath(QFileInfo(file).absoluteFilePath());
    QStringList newest = files();
    newest.removeAll(path);
    newest.prepend(path);
    settings_.setValue(FilesKey, newest.mid(0, MostFiles));
    settings_.setValue(FolderKey, QFileInfo(path).path());
}

void RecentFiles::clear() {
    settings_.remove(FilesKey);
}

QString RecentFiles::folder() const {
    const QString folder = settings_.value(FolderKey).toString();
    return !folder.isEmpty() && QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

}  // namespace Rotavue::Workbench
