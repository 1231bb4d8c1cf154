#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "workbench/bench/plane_source.h"
#include "workbench/bench/run_out.h"
#include "workbench/recording/background_task.h"

namespace Rotavue::Workbench {

/// A recording that shall be loaded.
struct LoadRequest {
    std::filesystem::path file;
    RecordingOptions options = {};
    bool isOfView = false;                    ///< wanted for a view, which is shown as a whole
    std::optional<RunOutSource> runOut = {};  ///< to be taken off
    bool isRemembered = false;    ///< the options are those of an earlier recording of this shape
    bool isToBeKept = false;      ///< the options become the machine file, once it has been read so
    bool isFurtherPlane = false;  ///< other columns than those that the file opens with by itself

    /// The recording that is read anew, whose place it takes; null for a further one.
    std::shared_ptr<const PlaneSource> instead = {};
};

/// Reads a recording, makes it ready for a control, and takes the run-out off. Takes as long as the
/// recording is; any thread may ask. Throws RecordingError, ReadingCancelled, and where the run-out
/// cannot be had a std::runtime_error that names the recording as well.
std::shared_ptr<const PlaneSource> loadPlane(const LoadRequest& request,
                                             const ReadingWatch& watch = {});

/// Loads recordings on a thread of its own, one after the other in the order in which they were
/// asked for. All signals come on the thread that the loader lives on.
class RecordingLoader : public QObject {
    Q_OBJECT

public:
    explicit RecordingLoader(QObject* parent = nullptr);

    /// Cancels what is being loaded; it ends by itself, a moment later at the most.
    ~RecordingLoader() override;

    void load(LoadRequest request);

    /// Cancels the recording that is being loaded and all that wait behind it. Each has its signal
    /// before this returns, and what is asked for next waits for none of them.
    void cancel();

    /// Cancels those that wait for a view, likewise.
    void cancelWaitingOfView();

    bool isLoading() const { return task_ != nullptr || !waiting_.empty(); }

Q_SIGNALS:
    /// About twenty times a second while a recording is being loaded: how much of it is done, 0 to
    /// 1, and for how long it has been loaded, in ms.
    void progressed(const Rotavue::Workbench::LoadRequest& request, double part, qint64 elapsed);

    /// Each recording ends with one of these.
    void loaded(const Rotavue::Workbench::LoadRequest& request,
                const std::shared_ptr<const Rotavue::Workbench::PlaneSource>& source);
    /// An answer to what the recording holds may help, or may not: it is no recording of a plane.
    void failed(const Rotavue::Workbench::LoadRequest& request, const QString& line,
                bool mayBeTold);
    void cancelled(const Rotavue::Workbench::LoadRequest& request);

    /// After the last of them.
    void idle();

private:
    struct Loaded {
        std::shared_ptr<const PlaneSource> source = {};
        std::string fault = {};  ///< where there is none
        bool mayBeTold = false;
    };
    using Task = BackgroundTask<Loaded>;

    static Loaded tryToLoad(const LoadRequest& request, const ReadingWatch& watch);

    void drop(std::deque<LoadRequest> requests);
    void beginNext();
    void look();
    void goOn();
    void finish();

    std::deque<LoadRequest> waiting_;
    LoadRequest current_;
    std::unique_ptr<Task> task_;
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 lastTold_ = 0;
};

}  // namespace Rotavue::Workbench
