#include "Lane.h"

#include <utility>

namespace brimshade::desktop {

Lane::Lane(QString label, std::size_t width, Schedule schedule)
    : m_label(std::move(label)), m_width(width), m_schedule(std::move(schedule))
{
}

void Lane::async(platform::Work work)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped)
            return;
        m_waiting.push_back(std::move(work));
        if (m_busy == m_width)
            return;
        ++m_busy;
    }
    m_schedule([self = weak_from_this()] {
        if (const auto lane = self.lock())
            lane->startNext();
    });
}

std::size_t Lane::waiting() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting.size();
}

void Lane::startNext()
{
    platform::Work work;
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiting.empty()) {
            --m_busy;
            return;
        }
        work = std::move(m_waiting.front());
        m_waiting.pop_front();
    }
    if (m_idle.empty()) {
        m_workers.push_back(std::make_unique<Worker>(*this));
        m_idle.push_back(m_workers.back().get());
    }
    Worker *const worker = m_idle.back();
    m_idle.pop_back();
    worker->assign(std::move(work));
    resume(*worker);
}

void Lane::resume(Worker &worker)
{
    worker.lendBaton();
    if (worker.isWorking())
        return; // asleep, or waiting for the main thread
    m_idle.push_back(&worker);
    m_schedule([self = weak_from_this()] {
        if (const auto lane = self.lock())
            lane->startNext();
    });
}

void Lane::stop()
{
    std::deque<platform::Work> dropped; // outlives the lock
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        dropped.swap(m_waiting);
    }
    m_idle.clear();
    m_workers.clear();
}

} // namespace brimshade::desktop
