#pragma once

#include <QString>
#include <QStringList>

class QSettings;

namespace Rotavue::Workbench {

/// The files that were opened last and the folder to look into next, kept in the settings.
class RecentFiles {
public:
    static constexpr int MostFiles = 10;

    /// The settings must outlive this.
    explicit RecentFiles(QSettings& settings) : settings_(settings) {}

    /// The newest first, each once, whether it is still there or not.
    QStringList files() const;

    /// Puts a file first, by its absolute path, and makes its folder the last one.
    void add(const QString& file);

    void clear();

    /// Where a dialog begins: the folder of the file that was added last, as long as it is there;
    /// else the home folder.
    QString folder() const;

private:
    QSettings& settings_;
};

}  // namespace Rotavue::Workbench
