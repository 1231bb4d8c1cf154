#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <utility>

#include "workbench/recording/reading_watch.h"

namespace Rotavue::Workbench {

/// Work on a thread of its own, which can be asked how far it is and be cancelled, and whose result
/// or error is fetched when it is done. Nothing is called back: whoever waits looks from time to
/// time, from the one thread that made the task.
template <typename Result>
class BackgroundTask {
public:
    /// Throws ReadingCancelled soon after its watch has said so.
    using Work = std::function<Result(const ReadingWatch&)>;

    /// Begins. Where the system has no more threads, the task counts as done at once, and `take`
    /// does the work.
    explicit BackgroundTask(Work work)
        : result_(std::async(std::launch::async | std::launch::deferred,
                             [this, work = std::move(work)] {
                                 return work([this](double part) { return reach(part); });
                             })) {}

    /// Cancels, and waits until the thread has ended.
    ~BackgroundTask() {
        cancel();
        const bool begun = result_.valid() && !isDeferred();
        if (begun) result_.wait();
    }
    BackgroundTask(const BackgroundTask&) = delete;
    BackgroundTask& operator=(const BackgroundTask&) = delete;

    /// How much is done, 0 to 1.
    double part() const { return part_; }

    void cancel() { cancelled_ = true; }
    bool isCancelled() const { return cancelled_; }

    bool isDone() const {
        return result_.wait_for(std::chrono::seconds(0)) != std::future_status::timeout;
    }

    /// Waits for the end and gives the result, once, or throws what the work threw.
    Result take() { return result_.get(); }

private:
    bool reach(double part) {
        part_ = part;
        return !cancelled_;
    }

    bool isDeferred() const {
        return result_.wait_for(std::chrono::seconds(0)) == std::future_status::deferred;
    }

    std::atomic<double> part_ = 0.0;
    std::atomic<bool> cancelled_ = false;
    std::future<Result> result_;  // last: the thread begins with it
};

}  // namespace Rotavue::Workbench
