#pragma once

#include <future>

namespace Rotavue::Workbench {

/// Takes a thread over that nobody waits for any more and that ends by itself: one whose work was
/// cancelled, and which owns all that it uses.
void leaveToEnd(std::future<void> thread);

/// Waits until all of them have ended. For the end of a program, before what all threads share
/// goes.
void waitForEndingThreads();

}  // namespace Rotavue::Workbench
