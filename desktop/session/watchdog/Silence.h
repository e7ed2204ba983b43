#pragma once
#include <algorithm>

namespace brimshade::desktop::session {

// For how long there has been no answer, in seconds, counted by the ticks of whoever waits. Between two ticks at most
// one tick counts: where more time has passed, this process did not run either.
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
