#pragma once
#include "platform/Dispatch.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace brimshade::desktop {

// The iterations of one concurrentPerform, shared by the threads that run them. Whoever begins one calls in another
// thread for the next, one call at a time: work that never waits is done by few threads, work that waits by as many
// as wait.
class Iterations : public std::enable_shared_from_this<Iterations> {
public:
    using Body = std::function<void(std::size_t)>;
    using CallIn = std::function<void(platform::Work)>; // runs it on another thread, or drops it

    // The body must live until the last iteration has ended; allEnded is then called, on the thread that ran it.
    Iterations(std::size_t count, const Body &body, CallIn callIn, platform::Work allEnded);

    void run(); // as long as there are iterations that nobody has begun

private:
    std::optional<std::size_t> begin();
    void answerCall();
    void end();

    const std::size_t m_count;
    const Body &m_body;
    const CallIn m_callIn;
    const platform::Work m_allEnded;

    std::mutex m_mutex;
    std::size_t m_begun = 0;
    std::size_t m_ended = 0;
    bool m_isCalling = false;
};

} // namespace brimshade::desktop
