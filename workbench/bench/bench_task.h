#pragma once

#include "workbench/bench/bench.h"
#include "workbench/recording/background_task.h"
#include "workbench/recording/reading_watch.h"

#include <QString>

#include <exception>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace Rotavue::Workbench {

/// Work for a bench on a thread of its own, and what becomes of it. One of the three operations is
/// called once, on the bench's thread, unless `Bench::endWork` has ended the work before: then none
/// is. Nobody waits for a thread whose work is cancelled or ended.
template <class Result>
struct BenchTask {
    QString what;                                ///< as `Bench::Work::what`
    typename BackgroundTask<Result>::Work make;  ///< owns all that it uses
    std::function<void(Result)> done;
    std::function<void(const std::string& why)> failed;
    std::function<void()> cancelled = [] {};
};

namespace BenchTasks {

template <class Result>
void deliver(BackgroundTask<Result>& made, const BenchTask<Result>& task) {
    try {
        task.done(made.take());
    } catch (const std::bad_alloc&) {
        task.failed("it takes more than fits into memory");
    } catch (const std::exception& error) {
        task.failed(error.what());
    }
}

}  // namespace BenchTasks

/// Begins it. The number is that of the bench's work.
template <class Result>
int beginTask(Bench& bench, BenchTask<Result> task) {
    const auto made = std::make_shared<BackgroundTask<Result>>(std::move(task.make));
    task.make = nullptr;
    const auto kept = std::make_shared<const BenchTask<Result>>(std::move(task));
    return bench.beginWork({.what = kept->what,
                            .part = [made] { return made->part(); },
                            .cancel =
                                [made, kept] {
                                    made->cancel();
                                    kept->cancelled();
                                },
                            .isDone = [made] { return made->isDone(); },
                            .deliver = [made, kept] { BenchTasks::deliver(*made, *kept); }});
}

}  // namespace Rotavue::Workbench
