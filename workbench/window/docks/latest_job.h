#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <utility>

namespace Rotavue::Workbench {

/// Work off the window's thread of which only the newest counts: while one job runs, the next one
/// waits, and a newer one takes its place. The end waits for the job that runs.
class LatestJob final : public QObject {
public:
    /// What a job has found, to be taken on the thread of this object.
    using Deliver = std::function<void()>;
    using Job = std::function<Deliver()>;

    explicit LatestJob(QObject* parent = nullptr) : QObject(parent) { pool_.setMaxThreadCount(1); }
    ~LatestJob() override { pool_.waitForDone(); }

    /// Runs the job as soon as none runs. A job must not throw.
    void start(Job job);

    bool isRunning() const { return running_; }

    /// Lets go of the job that waits, and of what the running one will deliver.
    void forget();

private:
    void run(Job job);
    void finish(unsigned generation, const Deliver& deliver);

    QThreadPool pool_;
    Job next_;
    bool running_ = false;
    unsigned generation_ = 0;
};

}  // namespace Rotavue::Workbench
