#pragma once
#include "platform/Dispatch.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace brimshade::desktop {

// The iterations of one concurrentPerform, shared by the threads that run them. A thread that begins one calls in
// another for the next, one call at a time: iterations that never wait are done by few threads, those that wait by as
// many as are waiting.
class Iterations : public std::enable_shared_from_this<Iterations> {
public:
    using Body = std::function<void(std::size_t)>;
    using CallIn = std::function<void(platform::Work)>; // runs it on another thread, or drops it

    // The body must live until the last iteration has ended; allEnded is then called, on the thread that ran it.
    Iterations(std::size_t count, const Body &body, CallIn callIn, platform::Work allEnded);

    void run(); // until every iteration has been begun

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
