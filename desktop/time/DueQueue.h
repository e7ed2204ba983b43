#pragma once
#include "Nanoseconds.h"
#include "platform/Dispatch.h"

#include <map>
#include <mutex>
#include <optional>
#include <utility>

namespace brimshade::desktop {

// Work ordered by its due time, then by its arrival. Any thread.
class DueQueue {
public:
    // True when this work is now the first; once closed, the work is dropped.
    bool add(Nanoseconds due, platform::Work work);
    std::optional<platform::Work> takeDue(Nanoseconds now);
    std::optional<Nanoseconds> nextDue() const;
    void close(); // drops what waits, and all that comes later

private:
    using Key = std::pair<Nanoseconds, std::uint64_t>;

    mutable std::mutex m_mutex;
    std::map<Key, platform::Work> m_waiting;
    std::uint64_t m_sequence = 0;
    bool m_closed = false;
};

} // namespace brimshade::desktop
