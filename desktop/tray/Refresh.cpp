#include "Refresh.h"

namespace brimshade::desktop::tray {

namespace {
constexpr double kDebounceSeconds = 0.010;
}

Refresh::Refresh(platform::Dispatch &dispatch, platform::Work fetch) : m_dispatch(dispatch), m_fetch(std::move(fetch))
{
}

void Refresh::request()
{
    if (m_state == State::reading)
        m_state = State::readingStale;
    if (m_state != State::idle)
        return;
    m_state = State::waiting;
    m_dispatch.mainAfter(kDebounceSeconds, m_lifetime.guard([this] { fetchIfWaiting(); }));
}

void Refresh::requestNow()
{
    if (m_state == State::reading || m_state == State::readingStale) {
        m_state = State::readingStale;
        return;
    }
    m_state = State::waiting;
    fetchIfWaiting();
}

void Refresh::fetchIfWaiting()
{
    if (m_state != State::waiting)
        return;
    m_state = State::reading;
    m_fetch();
}

void Refresh::finished()
{
    const bool again = m_state == State::readingStale;
    m_state = State::idle;
    if (again)
        request();
}

} // namespace brimshade::desktop::tray
