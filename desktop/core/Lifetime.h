#pragma once
#include "platform/Dispatch.h"

namespace brimshade::desktop {

// For work of an object that may be gone when the work's turn comes. The object is destroyed on the thread that
// runs the work; guard() may be called on any.
class Lifetime {
public:
    platform::Work guard(platform::Work work) const
    {
        return [alive = std::weak_ptr(m_token), work = std::move(work)] {
            if (!alive.expired())
                work();
        };
    }

private:
    std::shared_ptr<const char> m_token = std::make_shared<const char>();
};

} // namespace brimshade::desktop
