#include "workbench/recording/ending_threads.h"

#include <chrono>
#include <list>
#include <mutex>
#include <utility>

namespace Rotavue::Workbench {
namespace {

bool hasEnded(const std::future<void>& thread) {
    return thread.wait_for(std::chrono::seconds(0)) != std::future_status::timeout;
}

class EndingThreads {
public:
    void take(std::future<void> thread) {
        const std::lock_guard lock(mutex_);
        threads_.remove_if(hasEnded);
        threads_.push_back(std::move(thread));
    }

    // A future waits for its thread before it goes.
    void wait() {
        std::list<std::future<void>> threads;
        const std::lock_guard lock(mutex_);
        threads.swap(threads_);
    }

private:
    std::mutex mutex_;
    std::list<std::future<void>> threads_;
};

EndingThreads& endingThreads() {
    static EndingThreads threads;
    return threads;
}

}  // namespace

void leaveToEnd(std::future<void> thread) {
    if (thread.valid() && !hasEnded(thread)) endingThreads().take(std::move(thread));
}

void waitForEndingThreads() {
    endingThreads().wait();
}

}  // namespace Rotavue::Workbench
