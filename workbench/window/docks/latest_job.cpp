#include "workbench/window/docks/latest_job.h"

namespace Rotavue::Workbench {

void LatestJob::start(Job job) {
    if (running_) {
        next_ = std::move(job);
    } else {
        run(std::move(job));
    }
}

void LatestJob::forget() {
    next_ = nullptr;
    ++generation_;
}

void LatestJob::run(Job job) {
    running_ = true;
    pool_.start([this, generation = generation_, work = std::move(job)] {
        Deliver deliver = work();
        QMetaObject::invokeMethod(
            this, [this, generation, found = std::move(deliver)] { finish(generation, found); },
            Qt::QueuedConnection);
    });
}

void LatestJob::finish(unsigned generation, const Deliver& deliver) {
    running_ = false;
    if (next_) run(std::exchange(next_, nullptr));
    if (generation == generation_ && deliver) deliver();
}

}  // namespace Rotavue::Workbench
