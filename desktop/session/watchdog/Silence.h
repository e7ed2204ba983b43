#pragma once
#include <algorithm>

namespace brimshade::desktop::session {

// For how many seconds there has been no answer, counted at the waiter's ticks. Between two ticks at most one tick is
// counted: if more time has passed, this process was not running either.
class Silence {
public:
    Silence(double tick, double now) : m_tick(tick), m_last(now) { }

    double lasted(double now)
    {
        m_length += std::min(now - m_last, m_tick);
        m_last = now;
        return m_length;
    }
    void broken(double now)
    {
        m_length = 0;
        m_last = now;
    }

private:
    const double m_tick;
    double m_last;
    double m_length = 0;
};

} // namespace brimshade::desktop::session
