#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>

#include "workbench/recording/ending_threads.h"
#include "workbench/recording/reading_watch.h"

namespace Rotavue::Workbench {

/// Work on a thread of its own, which can be asked how far it is and be cancelled, and whose result
/// or error is fetched when it is done. Nothing is called back: whoever waits looks from time to
/// time, from the one thread that made the task.
template <typename Result>
class BackgroundTask {
public:
    /// Throws ReadingCancelled soon after its watch has said so. It owns all that it uses: it may
    /// outlive the task by that moment.
    using Work = std::function<Result(const ReadingWatch&)>;

    /// Begins. Where the system has no more threads, the task counts as done at once, and `take`
    /// does the work.
    explicit BackgroundTask(Work work)
        : thread_(std::async(std::launch::async | std::launch::deferred,
                             [state = state_, work = std::move(work)]() mutable {
                                 run(std::move(state), std::move(work));
                             })) {}

    /// Cancels. The thread, if it hasn't ended, is left to end (ending_threads.h): nobody waits.
    ~BackgroundTask() {
        cancel();
        leaveToEnd(std::move(thread_));
    }
    BackgroundTask(const BackgroundTask&) = delete;
    BackgroundTask& operator=(const BackgroundTask&) = delete;

    /// How much is done, 0 to 1.
    double part() const { return state_->part; }

    void cancel() { state_->cancelled = true; }
    bool isCancelled() const { return state_->cancelled; }

    bool isDone() const {
        return thread_.wait_for(std::chrono::seconds(0)) != std::future_status::timeout;
    }

    /// Waits for the end and gives the result, once, or throws what the work threw.
    Result take() {
        thread_.get();
        return std::move(*state_->result);
    }

private:
    struct State {
        std::atomic<double> part = 0.0;
        std::atomic<bool> cancelled = false;
        std::optional<Result> result = {};
    };

    /// What the work held, and a result that nobody wants any more, go with the work's end.
    static void run(const std::shared_ptr<State> state, const Work work) {
        state->result = work([&state](double part) {
            state->part = part;
            return !state->cancelled;
        });
    }

    std::shared_ptr<State> state_ = std::make_shared<State>();
    std::future<void> thread_;  // last: it begins with the state
};

}  // namespace Rotavue::Workbench
