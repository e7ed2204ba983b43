#pragma once
#include "platform/UserNotifications.h"

#include <QObject>

namespace brimshade::desktop {

class UserNotificationService : public QObject, public platform::UserNotifications {
    Q_OBJECT
public:
    void add(const QString &title, const QString &body) override { Q_EMIT added(title, body); }

Q_SIGNALS:
    void added(const QString &title, const QString &body);
};

} // namespace brimshade::desktop
