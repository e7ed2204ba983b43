#include "SessionNotices.h"
#include "desktop/core/Desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

void showNotices(Desktop &desktop)
{
    QObject::connect(&desktop, &Desktop::notified, &desktop, [](const QString &application, const QString &what) {
        const auto service = u"org.freedesktop.Notifications"_s;
        auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service, u"Notify"_s);
        constexpr uint replacesNone = 0;
        constexpr int serviceDecides = -1; // for how long it stays
        call.setArguments({u"Brimshade"_s, replacesNone, u"org.brimshade.Brimshade"_s, application, what, QStringList(),
                           QVariantMap(), serviceDecides});
        QDBusConnection::sessionBus().send(call);
    });
}

} // namespace brimshade::desktop::session
