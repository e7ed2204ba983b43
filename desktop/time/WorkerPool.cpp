#include "WorkerPool.h"

namespace brimshade::desktop {

WorkerPool::WorkerPool(std::size_t limit) : m_limit(limit) { }

WorkerPool::~WorkerPool()
{
    join();
}

void WorkerPool::join()
{
    close(); // no thread is added after this
    for (std::thread &thread : m_threads)
        thread.join();
    m_threads.clear();
}

void WorkerPool::async(platform::Work work)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed)
        return;
    m_waiting.push_back(std::move(work));
    if (m_idle < m_waiting.size() && m_threads.size() < m_limit)
        m_threads.emplace_back([this] { run(); });
    else
        m_changed.notify_one();
}

void WorkerPool::close()
{
    std::deque<platform::Work> dropped; // outlives the lock
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    dropped.swap(m_waiting);
    m_changed.notify_all();
}

void WorkerPool::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_changed.wait(lock, [this] { return m_closed || !m_waiting.empty(); });
        --m_idle;
        if (m_closed)
            return;
        platform::Work work = std::move(m_waiting.front());
        m_waiting.pop_front();
        lock.unlock();
        work();
        work = nullptr; // destroys what it holds outside the lock
        lock.lock();
    }
}

} // namespace brimshade::desktop
