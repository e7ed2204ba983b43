#include "PortalShortcut.h"

#include <QDBusMetaType>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

void registerPortalTypes()
{
    qRegisterMetaType<QDBusObjectPath>(); // under its name; otherwise a slot with such an argument is not found
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
}

QStringList shortcutIds(const QVariant &list)
{
    QStringList ids;
    const auto argument = list.value<QDBusArgument>();
    if (argument.currentSignature() != "a(sa{sv})"_L1)
        return ids;
    for (const PortalShortcut &each : qdbus_cast<QList<PortalShortcut>>(argument))
        ids.append(each.id);
    return ids;
}

} // namespace brimshade::desktop
