#include "workbench/recording/background_task.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

#include "tests/workbench/recording/scratch_folder.h"
#include "workbench/recording/recording.h"

namespace Rotavue::Workbench {
namespace {

// Goes on until it is cancelled.
int endless(const ReadingWatch& watch) {
    while (watch(0.5))
        std::this_thread::yield();
    throw ReadingCancelled();
}

void waitFor(const BackgroundTask<int>& task) {
    while (!task.isDone())
        std::this_thread::yield();
}

TEST(BackgroundTaskTest, GivesItsResult) {
    BackgroundTask<int> task([](const ReadingWatch& watch) { return watch(1.0) ? 42 : 0; });
    waitFor(task);
    EXPECT_EQ(task.part(), 1.0);
    EXPECT_EQ(task.take(), 42);
}

TEST(BackgroundTaskTest, GivesTheErrorInPlaceOfAResult) {
    BackgroundTask<int> task([](const ReadingWatch&) -> int { throw std::runtime_error("no"); });
    EXPECT_THROW(task.take(), std::runtime_error);
}

TEST(BackgroundTaskTest, TellsHowFarItIsAndEndsWhenCancelled) {
    BackgroundTask<int> task(endless);
    while (task.part() < 0.5)
        std::this_thread::yield();
    EXPECT_FALSE(task.isDone());
    task.cancel();
    EXPECT_TRUE(task.isCancelled());
    EXPECT_THROW(task.take(), ReadingCancelled);
}

TEST(BackgroundTaskTest, WhoDropsItDoesNotWaitForItsEnd) {
    std::promise<void> mayEnd;
    std::atomic<bool> hasEnded = false;
    {
        BackgroundTask<int> task(
            [&, wait = mayEnd.get_future().share()](const ReadingWatch& watch) {
                while (watch(0.5))
                    std::this_thread::yield();
                wait.wait();
                hasEnded = true;
                return 0;
            });
    }
    EXPECT_FALSE(hasEnded);  // would hang if the end of the task had waited
    mayEnd.set_value();
    waitForEndingThreads();
    EXPECT_TRUE(hasEnded);
}

TEST(BackgroundTaskTest, WhatADroppedOneHeldGoesWhenItEnds) {
    const auto held = std::make_shared<int>(7);
    {
        BackgroundTask<std::shared_ptr<int>> task([held](const ReadingWatch& watch) {
            while (watch(0.5))
                std::this_thread::yield();
            return held;
        });
    }
    while (held.use_count() > 1)
        std::this_thread::yield();
    waitForEndingThreads();
    EXPECT_EQ(held.use_count(), 1);
}

class BackgroundReading : public ScratchFolder {};

TEST_F(BackgroundReading, ReadsATableWhileItIsWatched) {
    std::string text = "t,x,y\n";
    for (int i = 0; i < 20'000; ++i)
        text += std::to_string(i) + ",1.5,2.5\n";
    const auto file = write("f.csv", text);
    BackgroundTask<Recording> task(
        [&](const ReadingWatch& watch) { return readRecording(file, {}, watch); });
    double last = 0.0;
    while (!task.isDone()) {
        const double part = task.part();
        ASSERT_GE(part, last);
        last = part;
        std::this_thread::yield();
    }
    EXPECT_EQ(task.take().x, std::vector<double>(20'000, 1.5));
}

}  // namespace
}  // namespace Rotavue::Workbench
