#pragma once
#include "platform/Dispatch.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace brimshade::desktop {

// Up to `limit` threads, created when work finds none of them free. Work starts in the order of its arrival, so a pool
// of one thread is a serial queue.
class WorkerPool {
public:
    explicit WorkerPool(std::size_t limit);
    ~WorkerPool();
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;

    void async(platform::Work work); // any thread; dropped once closed
    void close(); // any thread; drops waiting work and returns at once
    void join(); // closes, then waits for the work that has started

private:
    void run();

    const std::size_t m_limit;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<platform::Work> m_waiting;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    bool m_closed = false;
};

} // namespace brimshade::desktop
