#pragma once
#include "desktop/core/ItemGesture.h"

#include <QImage>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>
#include <vector>

namespace brimshade::desktop::tray {

// A picture as a program names it: the name is looked up first, the pixels are for when it is not found.
struct ItemIcon {
    QString name; // in a theme, or an absolute path
    QImage pixmap;

    bool isEmpty() const { return name.isEmpty() && pixmap.isNull(); }
    bool operator==(const ItemIcon &) const = default;
};

// What a program says of its tray item, checked. Texts are one line, plain, bounded, and empty where absent.
struct TrayItem {
    enum class Status { passive, active, needsAttention };

    QString id, title;
    QString toolTipTitle, toolTipText;
    QString label; // shown beside the icon, "21 °C"
    QString labelGuide; // as wide as labels get
    Status status = Status::active;
    ItemIcon icon, attentionIcon, overlayIcon;
    QString iconThemePath;
    QString menuPath; // empty: no menu; the path "/NO_DBUSMENU" counts as one that only the program can show
    bool showsOwnMenu = false;
    std::optional<bool> itemIsMenu;
    bool isIndicator = false; // of the library that most GTK programs use

    QString nameForPeople() const; // title, the tool tip's title or the id; may be empty
    const ItemIcon &shownIcon() const; // by status
    bool operator==(const TrayItem &) const = default;
};

struct ParsedItem {
    TrayItem item;
    QStringList complaints;
};

// From the plain values of every property. Nothing here can fail: what is missing or of a wrong type is absent.
ParsedItem parseItem(const QVariantMap &properties);

// What carries out a gesture, in order; the next one is tried when the program has no such thing.
enum class Press { menu, contextMenu, activate, secondaryActivate };
std::vector<Press> pressOrder(const TrayItem &item, ItemGesture gesture);

// What Scroll is told for so much of the wheel (120 is a notch, up and left), which is taken from it: most programs
// count in those units, indicators in whole notches, down and right.
QPoint takeScroll(const TrayItem &item, QPoint &by);

} // namespace brimshade::desktop::tray
