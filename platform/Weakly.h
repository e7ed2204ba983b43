#pragma once
#include <QPointer>
#include <functional>
#include <memory>
#include <utility>

// Closures for a queue, a timer, a menu or an observer that may outlive the object they are about. While the object
// exists, such a closure makes its call with the object, what is bound here and its own arguments, in that order; once
// it is gone, it does nothing.
namespace brimshade::platform {

// Keeps the object for as long as the call takes.
template <class Object, class Call, class... Bound> auto weakly(std::weak_ptr<Object> object, Call call, Bound... bound)
{
    return [object = std::move(object), call = std::move(call),
            ... bound = std::move(bound)]<class... Arguments>(Arguments &&...arguments) {
        if (const std::shared_ptr<Object> self = object.lock())
            std::invoke(call, *self, bound..., std::forward<Arguments>(arguments)...);
    };
}

// For a QObject with a single owner. Called on the object's thread.
template <class Object, class Call, class... Bound> auto weakly(QPointer<Object> object, Call call, Bound... bound)
{
    return [object = std::move(object), call = std::move(call),
            ... bound = std::move(bound)]<class... Arguments>(Arguments &&...arguments) {
        if (Object *self = object.data())
            std::invoke(call, *self, bound..., std::forward<Arguments>(arguments)...);
    };
}

} // namespace brimshade::platform
