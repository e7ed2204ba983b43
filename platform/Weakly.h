#pragma once
#include <functional>
#include <memory>
#include <utility>

namespace brimshade::platform {

// A closure for a queue, a timer or an observer that may outlive the object: calls with the object, then what is bound
// here, then its own arguments while the object exists, which it keeps for so long, and does nothing once it is gone.
template <class Object, class Call, class... Bound> auto weakly(std::weak_ptr<Object> object, Call call, Bound... bound)
{
    return [object = std::move(object), call = std::move(call),
            ... bound = std::move(bound)]<class... Arguments>(Arguments &&...arguments) {
        if (const std::shared_ptr<Object> self = object.lock())
            std::invoke(call, *self, bound..., std::forward<Arguments>(arguments)...);
    };
}

} // namespace brimshade::platform
