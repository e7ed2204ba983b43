#include "WireLayout.h"

#include <QDBusMetaType>
#include <QDBusVariant>

namespace brimshade::desktop::tray {

const MenuNode *MenuNode::find(int wanted) const
{
    if (id == wanted)
        return this;
    for (const auto &child : children) {
        if (const auto *found = child.find(wanted))
            return found;
    }
    return nullptr;
}

QVariant MenuNode::plain() const
{
    QVariantList nodes;
    for (const auto &child : children)
        nodes.append(child.plain());
    return QVariantList{id, properties, QVariant(nodes)};
}

MenuNode labelled(int id, const QString &label, QVariantMap more, std::vector<MenuNode> children)
{
    more.insert(u"label"_s, label);
    if (!children.empty())
        more.insert(u"children-display"_s, u"submenu"_s);
    return {id, more, std::move(children)};
}

MenuNode separator(int id)
{
    return {id, {{u"type"_s, u"separator"_s}}, {}};
}

QDBusArgument &operator<<(QDBusArgument &argument, const MenuNode &node)
{
    argument.beginStructure();
    argument << node.id << node.properties;
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    for (const auto &child : node.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, MenuNode &)
{
    return argument; // it is only ever sent
}

QDBusArgument &operator<<(QDBusArgument &argument, const WirePicture &picture)
{
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, WirePicture &)
{
    return argument;
}

void registerWireTypes()
{
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<WirePicture>();
    qDBusRegisterMetaType<WirePictures>();
}

} // namespace brimshade::desktop::tray
