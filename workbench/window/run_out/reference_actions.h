#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/latest_job.h"
#include "workbench/window/run_out/marked_plane.h"

#include <QAction>
#include <QObject>

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Rotavue::Workbench {

/// Keeps the mean of the current plane's turns as a reference orbit in a file, to compare others
/// with: the turns of the marked stretch, or those shown at the cursor where none is marked, as the
/// plane shows them, with or without run-out. Done off the window's thread, as work that the bench
/// tells of and cancels; what cannot be done the bench reports. The planes stay as they are: there
/// is nothing to undo.
class ReferenceActions final : public QObject {
public:
    /// Tells the user of what has gone well.
    using Tell = std::function<void(const QString& line)>;

    /// `window` is the parent of what asks for a file.
    ReferenceActions(Bench& bench, MarkedPlane marked, Tell tell, QWidget& window);

    QAction save;  ///< asks for the file

    ~ReferenceActions() override;

    /// To be called when another plane or another stretch has become the current one.
    void refresh();

    /// Keeps the reference of the current plane in that file. One that the bench's planes are made
    /// from is refused; any other is replaced.
    void saveTo(const std::filesystem::path& file);

    bool isSaving() const { return progress_ != nullptr; }

private:
    /// What shall be kept, as it is when the user asks for it.
    struct Order {
        std::shared_ptr<Plane> plane;
        QString name;  ///< of the plane
        TimeSpan span;
    };

    struct Result {
        int turns = 0;  ///< in the mean; 0: nothing is kept
        TimeSpan span = {};
        std::string failure = {};  ///< empty where it was cancelled
    };

    /// What the worker and the window's thread tell each other.
    struct Progress {
        std::atomic<double> part{0.0};
        std::atomic<bool> cancelled{false};
    };

    std::optional<Order> order() const;
    void askForFile();
    void keep(const Order& order, const std::filesystem::path& file);
    static Result resultOf(const PlaneSource& source, const TimeSpan& span,
                           const std::filesystem::path& file, Progress& progress);
    void begin(const QString& name, const std::shared_ptr<Progress>& progress);
    void end(const std::shared_ptr<Progress>& progress);
    void tellOf(const QString& name, const std::filesystem::path& file, const Result& result);

    Bench& bench_;
    MarkedPlane marked_;
    Tell tell_;
    QWidget& window_;
    std::shared_ptr<Progress> progress_;  ///< of what is being saved; null: nothing is
    int work_ = 0;                        ///< its number among the bench's work
    LatestJob job_;
};

}  // namespace Rotavue::Workbench
