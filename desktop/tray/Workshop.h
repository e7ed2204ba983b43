#pragma once
#include "IconFinder.h"
#include "Program.h"
#include "platform/Dispatch.h"

#include <memory>

namespace brimshade::desktop::tray {

// The tray's work off the main thread: reading files and parsing what programs sent, one piece after another. Main
// thread; the Dispatch outlives it, and the work under way may outlive it, too.
class Workshop {
public:
    struct Tools {
        IconFinder icons;
        ProgramFinder programs;
    };
    explicit Workshop(platform::Dispatch &dispatch);

    platform::Dispatch &dispatch() const { return m_dispatch; }

    // Runs make(Tools &) off the main thread, then use(its result) on it. The caller may be gone by then: guard use.
    template <class Make, class Use> void run(Make make, Use use) const
    {
        m_queue->async([make = std::move(make), use = std::move(use), tools = m_tools, &dispatch = m_dispatch] {
            dispatch.mainAsync([use, result = make(*tools)] { use(result); });
        });
    }

private:
    platform::Dispatch &m_dispatch;
    std::shared_ptr<platform::SerialQueue> m_queue;
    std::shared_ptr<Tools> m_tools; // touched on the queue only
};

} // namespace brimshade::desktop::tray
