#pragma once
#include <QPointer>
#include <functional>
#include <memory>
#include <utility>

// Closures for a queue, a timer, a menu or an observer that may outlive the object they are about. Such a closure calls
// with the object, then what is bound here, then its own arguments, while the object exists, and does nothing once it
// is gone.
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

// Of a QObject that one owner has. Called on the object's thread.
template <class Object, class Call, class... Bound> auto weakly(QPointer<Object> object, Call call, Bound... bound)
{
    return [object = std::move(object), call = std::move(call),
            ... bound = std::move(bound)]<class... Arguments>(Arguments &&...arguments) {
        if (Object *self = object.data())
            std::invoke(call, *self, bound..., std::forward<Arguments>(arguments)...);
    };
}

} // namespace brimshade::platform
