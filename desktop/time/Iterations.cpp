#include "Iterations.h"

#include <utility>

namespace brimshade::desktop {

Iterations::Iterations(std::size_t count, const Body &body, CallIn callIn, platform::Work allEnded)
    : m_count(count), m_body(body), m_callIn(std::move(callIn)), m_allEnded(std::move(allEnded))
{
}

void Iterations::run()
{
    while (const std::optional<std::size_t> index = begin()) {
        m_body(*index);
        end();
    }
}

std::optional<std::size_t> Iterations::begin()
{
    std::unique_lock lock(m_mutex);
    if (m_begun == m_count)
        return std::nullopt;
    const std::size_t index = m_begun++;
    if (m_begun < m_count && !std::exchange(m_isCalling, true)) {
        lock.unlock();
        m_callIn([self = shared_from_this()] { self->answerCall(); });
    }
    return index;
}

void Iterations::answerCall()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isCalling = false;
    }
    run();
}

void Iterations::end()
{
    std::unique_lock lock(m_mutex);
    if (++m_ended < m_count)
        return;
    lock.unlock();
    m_allEnded();
}

} // namespace brimshade::desktop
