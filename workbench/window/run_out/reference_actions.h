#pragma once

#include "workbench/bench/bench.h"
#include "workbench/files/progress_row.h"
#include "workbench/recording/background_task.h"
#include "workbench/window/run_out/marked_plane.h"

#include <QAction>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace Rotavue::Workbench {

/// Keeps the mean of the current plane's turns as a reference orbit in a file, to compare others
/// with: the turns of the marked stretch, or all where none is marked, as the plane shows them,
/// with or without run-out. Done off the window's thread; what cannot be done the bench reports.
/// The bench stays as it is: there is nothing to undo.
class ReferenceActions final : public QObject {
public:
    /// Tells the user of what has gone well.
    using Tell = std::function<void(const QString& line)>;

    /// `window` is the parent of what asks for a file.
    ReferenceActions(Bench& bench, MarkedPlane marked, Tell tell, QWidget& window);

    QAction save;  ///< asks for the file

    /// A line with the progress of what takes long, and a button that cancels it; shown from half a
    /// second on. The caller owns it.
    ProgressRow* makeBar(QWidget* parent);

    /// To be called when another plane has become the current one.
    void refresh();

    /// Keeps the reference of the current plane in that file. One that the bench's planes are made
    /// from is refused; any other is replaced.
    void saveTo(const std::filesystem::path& file);

    bool isSaving() const { return task_ != nullptr; }

private:
    using Task = BackgroundTask<int>;  // gives how many turns are in the mean

    void askForFile();
    void look();
    void finish();
    void endProgress();

    Bench& bench_;
    MarkedPlane marked_;
    Tell tell_;
    QWidget& window_;
    QPointer<ProgressRow> bar_;
    QString plane_;  ///< whose reference is being saved
    std::filesystem::path file_;
    std::unique_ptr<Task> task_;
    QTimer tick_;
    QElapsedTimer clock_;
};

}  // namespace Rotavue::Workbench
