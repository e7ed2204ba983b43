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
    using Turn = std::uint64_t; // among what is due at the same time

    // True if this work is now the first; once the queue is closed, the work is dropped.
    bool add(Nanoseconds due, platform::Work work);
    // The same with a turn reserved earlier, for work that is scheduled again and again; only one piece of work has it
    // at a time.
    bool add(Nanoseconds due, Turn turn, platform::Work work);
    Turn takeTurns(std::size_t count); // that many, from the one returned on

    std::optional<platform::Work> takeDue(Nanoseconds now);
    std::optional<Nanoseconds> nextDue() const;
    std::size_t size() const;
    void close(); // drops what is waiting and all that comes later

private:
    using Key = std::pair<Nanoseconds, Turn>;

    bool insert(Key key, platform::Work work); // with the lock held

    mutable std::mutex m_mutex;
    std::map<Key, platform::Work> m_waiting;
    Turn m_nextTurn = 0;
    bool m_closed = false;
};

} // namespace brimshade::desktop
