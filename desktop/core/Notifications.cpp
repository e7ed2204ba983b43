#include "Notifications.h"

namespace brimshade::desktop {

void Notifications::addObserver(const QString &name, const void *object, platform::Work handler)
{
    m_observers.push_back({name, object, std::move(handler)});
}

void Notifications::post(const char *name, const void *object)
{
    const auto observers = m_observers; // a handler may add one
    for (const Observer &observer : observers) {
        if (observer.name == QLatin1StringView(name) && (!observer.object || observer.object == object))
            observer.handler();
    }
}

} // namespace brimshade::desktop
