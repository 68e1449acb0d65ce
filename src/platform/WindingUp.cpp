#include "platform/WindingUp.h"

#include <chrono>
#include <iterator>
#include <list>
#include <utility>

namespace {

using windingup::Worker;

using Clock = std::chrono::steady_clock;

/// How long the end of the program waits for all threads.
constexpr std::chrono::seconds longestWindingUp{5};

bool joined(Worker &worker, Clock::time_point patienceEnds)
{
    if (worker.ended.wait_until(patienceEnds) != std::future_status::ready)
        return false;
    worker.thread.join();
    return true;
}

class LeftWorkers
{
public:
    LeftWorkers() = default;
    LeftWorkers(const LeftWorkers &) = delete;
    LeftWorkers &operator=(const LeftWorkers &) = delete;
    ~LeftWorkers()
    {
        const Clock::time_point patienceEnds = Clock::now() + longestWindingUp;
        for (Worker &worker : m_workers)
            if (!joined(worker, patienceEnds))
                worker.thread.detach();
    }

    void add(Worker worker)
    {
        m_workers.push_back(std::move(worker));
        for (auto old = m_workers.begin(); old != m_workers.end();)
            old = joined(*old, Clock::now()) ? m_workers.erase(old) : std::next(old);
    }

private:
    std::list<Worker> m_workers;
};

} // namespace

namespace windingup {

Worker begin(std::function<void()> work)
{
    Worker worker;
    std::promise<void> ended;
    worker.ended = ended.get_future();
    worker.thread = std::thread([work = std::move(work), ended = std::move(ended)]() mutable {
        std::exchange(work, {})();
        ended.set_value();
    });
    return worker;
}

void leave(Worker worker)
{
    static LeftWorkers workers;
    workers.add(std::move(worker));
}

} // namespace windingup
