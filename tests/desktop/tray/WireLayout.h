#pragma once
#include "support/Test.h"

#include <QDBusArgument>

namespace brimshade::desktop::tray {

// A menu as a program describes it: on the wire for a scripted program, plain for the parser's tables.
struct MenuNode {
    int id = 0;
    QVariantMap properties;
    std::vector<MenuNode> children;

    const MenuNode *find(int wanted) const;
    QVariant plain() const;
};

MenuNode labelled(int id, const QString &label, QVariantMap more = {}, std::vector<MenuNode> children = {});
MenuNode separator(int id);

QDBusArgument &operator<<(QDBusArgument &argument, const MenuNode &node);
const QDBusArgument &operator>>(const QDBusArgument &argument, MenuNode &node);

// One picture of an IconPixmap.
struct WirePicture {
    int width = 0, height = 0;
    QByteArray bytes;
};
using WirePictures = QList<WirePicture>;

QDBusArgument &operator<<(QDBusArgument &argument, const WirePicture &picture);
const QDBusArgument &operator>>(const QDBusArgument &argument, WirePicture &picture);

void registerWireTypes();

} // namespace brimshade::desktop::tray

Q_DECLARE_METATYPE(brimshade::desktop::tray::MenuNode)
Q_DECLARE_METATYPE(brimshade::desktop::tray::WirePicture)
