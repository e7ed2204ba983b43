#pragma once
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace brimshade::desktop::session {

// Requests that come before the program can carry them out, a moment later in the same start: the bus may have started
// it for that very call. Main thread.
class Waiting {
public:
    using Work = std::function<void()>;

    // Now, or when all is ready; false when too much waits already.
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

    void end() // in the order in which it came
    {
        m_isReady = true;
        for (const Work &work : std::exchange(m_works, {}))
            work();
    }

private:
    static constexpr std::size_t kMost = 16; // nobody asks for more than that in earnest

    bool m_isReady = false;
    std::vector<Work> m_works;
};

} // namespace brimshade::desktop::session
