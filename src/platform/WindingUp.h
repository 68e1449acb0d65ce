#pragma once

#include <functional>
#include <future>
#include <thread>

/// Threads whose work nobody waits for any more. Closing a window must not wait for a slow one, but
/// the program must not end under it either, unless that takes too long.
namespace windingup {

/// A thread, and the promise that it keeps when it has nothing left to do.
struct Worker
{
    std::thread thread;
    std::future<void> ended;
};

/// Runs `work`, which owns all that it uses, in a thread of its own.
[[nodiscard]] Worker begin(std::function<void()> work);

/// Leaves the thread to end by itself. Called in one thread only.
void leave(Worker worker);

} // namespace windingup
