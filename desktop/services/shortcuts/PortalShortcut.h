#pragma once
#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace brimshade::desktop {

// A shortcut as the portal takes and lists it: (sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);
void registerPortalTypes();

// The ids in a list from the portal; empty for anything else.
QStringList shortcutIds(const QVariant &list);

} // namespace brimshade::desktop

Q_DECLARE_METATYPE(brimshade::desktop::PortalShortcut)
