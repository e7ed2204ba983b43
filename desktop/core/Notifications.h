#pragma once
#include "platform/NotificationCenter.h"

#include <vector>

namespace brimshade::desktop {

class Notifications : public platform::NotificationCenter {
public:
    void addObserver(const QString &name, const void *object, platform::Work handler) override;
    // Observers that are added meanwhile get only later notifications.
    void post(const char *name, const void *object = nullptr);

private:
    struct Observer {
        QString name;
        const void *object;
        platform::Work handler;
    };
    std::vector<Observer> m_observers;
};

} // namespace brimshade::desktop
