#include "workbench/window/docks/latest_job.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace Rotavue::Workbench {
namespace {

TEST(LatestJob, WorksElsewhereAndDeliversHere) {
    LatestJob job;
    QThread* worked = nullptr;
    QThread* delivered = nullptr;
    job.start([&]() -> LatestJob::Deliver {
        worked = QThread::currentThread();
        return [&] { delivered = QThread::currentThread(); };
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return delivered != nullptr; }));
    EXPECT_NE(worked, QThread::currentThread());
    EXPECT_EQ(delivered, QThread::currentThread());
    EXPECT_FALSE(job.isRunning());
}

TEST(LatestJob, OfThoseThatWaitTheNewestIsRun) {
    LatestJob job;
    QSemaphore gate;
    std::vector<int> delivered;
    const auto numbered = [&](int number, bool waits) {
        return [&, number, waits]() -> LatestJob::Deliver {
            if (waits) gate.acquire();
            return [&, number] { delivered.push_back(number); };
        };
    };
    job.start(numbered(1, true));
    job.start(numbered(2, false));
    job.start(numbered(3, false));
    gate.release();
    ASSERT_TRUE(QTest::qWaitFor([&] { return delivered.size() == 2; }));
    EXPECT_EQ(delivered, (std::vector{1, 3}));
}

TEST(LatestJob, WhatIsForgottenIsNotDelivered) {
    LatestJob job;
    bool delivered = false;
    job.start([&]() -> LatestJob::Deliver { return [&] { delivered = true; }; });
    job.forget();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !job.isRunning(); }));
    EXPECT_FALSE(delivered);
}

TEST(LatestJob, EndWaitsForTheOneThatRuns) {
    bool ended = false;
    {
        LatestJob job;
        job.start([&]() -> LatestJob::Deliver {
            QThread::msleep(20);
            ended = true;
            return {};
        });
    }
    EXPECT_TRUE(ended);
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace Rotavue::Workbench
