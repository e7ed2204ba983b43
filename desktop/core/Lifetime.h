#pragma once
#include <memory>
#include <utility>

namespace brimshade::desktop {

// Guards work of an object with a single owner that may be gone when the work's turn comes. The object is destroyed on
// the thread that runs the work; guard() may be called on any thread while the object exists.
class Lifetime {
public:
    template <class Work> auto guard(Work work) const
    {
        return [alive = std::weak_ptr(m_token), work = std::move(work)](auto &&...arguments) {
            if (!alive.expired())
                work(std::forward<decltype(arguments)>(arguments)...);
        };
    }

private:
    std::shared_ptr<const char> m_token = std::make_shared<const char>();
};

} // namespace brimshade::desktop
