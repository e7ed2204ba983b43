#pragma once
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace brimshade::desktop::session {

// Holds requests that come, during startup, before the program can carry them out: the bus may have started it for that
// very call. Main thread.
class Waiting {
public:
    using Work = std::function<void()>;

    // Runs it now, or once everything is ready; false if too many are waiting already.
    bool run(Work work)
    {
        if (m_isReady)
            work();
        else if (m_works.size() < kMost)
            m_works.push_back(std::move(work));
        else
            return false;
        return true;
    }

    void end() // runs them in order of arrival
    {
        m_isReady = true;
        for (const Work &work : std::exchange(m_works, {}))
            work();
    }

private:
    static constexpr std::size_t kMost = 16; // nobody seriously asks for more

    bool m_isReady = false;
    std::vector<Work> m_works;
};

} // namespace brimshade::desktop::session
