#include "DueQueue.h"

namespace brimshade::desktop {

bool DueQueue::add(Nanoseconds due, platform::Work work)
{
    const std::lock_guard lock(m_mutex);
    return insert({due, m_nextTurn++}, std::move(work));
}

bool DueQueue::add(Nanoseconds due, Turn turn, platform::Work work)
{
    const std::lock_guard lock(m_mutex);
    return insert({due, turn}, std::move(work));
}

bool DueQueue::insert(Key key, platform::Work work)
{
    if (m_closed)
        return false;
    const auto place = m_waiting.emplace(key, std::move(work)).first;
    return place == m_waiting.begin();
}

DueQueue::Turn DueQueue::takeTurns(std::size_t count)
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_nextTurn, m_nextTurn + count);
}

std::optional<platform::Work> DueQueue::takeDue(Nanoseconds now)
{
    const std::lock_guard lock(m_mutex);
    if (m_waiting.empty() || m_waiting.begin()->first.first > now)
        return std::nullopt;
    return std::move(m_waiting.extract(m_waiting.begin()).mapped());
}

std::optional<Nanoseconds> DueQueue::nextDue() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting.empty() ? std::nullopt : std::optional(m_waiting.begin()->first.first);
}

std::size_t DueQueue::size() const
{
    const std::lock_guard lock(m_mutex);
    return m_waiting.size();
}

void DueQueue::close()
{
    // Destroyed after the lock is released, because destroying what the work holds may call back into this queue.
    std::map<Key, platform::Work> dropped;
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    dropped.swap(m_waiting);
}

} // namespace brimshade::desktop
