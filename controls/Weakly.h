#pragma once
#include <memory>

namespace brimshade::controls {

// A closure that calls the method of the object while it exists, and does nothing once it is gone.
template <class Object, class... Arguments>
auto weakly(std::weak_ptr<Object> object, void (Object::*method)(Arguments...))
{
    return [object = std::move(object), method](Arguments... arguments) {
        if (const std::shared_ptr<Object> self = object.lock())
            (self.get()->*method)(arguments...);
    };
}

} // namespace brimshade::controls
