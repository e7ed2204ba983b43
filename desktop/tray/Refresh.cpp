#include "Refresh.h"

#include <algorithm>
#include <cmath>

namespace brimshade::desktop::tray {

namespace {
constexpr double kDebounceSeconds = 0.010;
constexpr double kBeat = 0.1, kQuiet = 1; // seconds
constexpr double kFirstRetry = 1, kLongestRetry = 300; // seconds
} // namespace

Refresh::Refresh(platform::Dispatch &dispatch, platform::Work fetch) : m_dispatch(dispatch), m_fetch(std::move(fetch))
{
}

void Refresh::request()
{
    if (m_state == State::reading)
        m_state = State::readingStale;
    if (m_state == State::idle || m_state == State::pausing)
        fetchAfter(delay(), State::waiting);
}

// Items that change all the time are read on a common beat, so that moving icons are drawn in one frame, not each in
// its own.
double Refresh::delay() const
{
    const double now = m_dispatch.now();
    return now - m_readAt > kQuiet ? kDebounceSeconds : std::ceil(now / kBeat) * kBeat - now;
}

void Refresh::requestNow()
{
    if (m_state == State::reading || m_state == State::readingStale)
        m_state = State::readingStale;
    else
        fetchNow();
}

void Refresh::fetchAfter(double seconds, State meanwhile)
{
    m_state = meanwhile;
    m_dispatch.mainAfter(seconds, m_lifetime.guard([this, turn = ++m_turn] {
        if (turn == m_turn)
            fetchNow();
    }));
}

void Refresh::fetchNow()
{
    ++m_turn;
    m_readAt = m_dispatch.now();
    m_state = State::reading;
    m_fetch();
}

void Refresh::finished()
{
    m_pause = 0;
    if (std::exchange(m_state, State::idle) == State::readingStale)
        request();
}

void Refresh::failed()
{
    m_pause = std::clamp(2 * m_pause, kFirstRetry, kLongestRetry);
    if (std::exchange(m_state, State::idle) == State::readingStale)
        request();
    else
        fetchAfter(m_pause, State::pausing);
}

} // namespace brimshade::desktop::tray
