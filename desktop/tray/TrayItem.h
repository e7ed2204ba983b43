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

// A picture as a program specifies it: the name is looked up first, the pixels are used if it is not found.
struct ItemIcon {
    QString name; // a name in a theme, or an absolute path
    QImage pixmap;

    bool isEmpty() const { return name.isEmpty() && pixmap.isNull(); }
    bool operator==(const ItemIcon &) const = default;
};

// What a program says about its tray item, checked. Texts are plain, bounded, single lines, and empty if absent.
struct TrayItem {
    enum class Status { passive, active, needsAttention };

    QString id, title;
    QString toolTipTitle, toolTipText;
    QString label; // shown beside the icon, "21 °C"
    QString labelGuide; // as wide as the label gets
    Status status = Status::active;
    ItemIcon icon, attentionIcon, overlayIcon;
    QString iconThemePath;
    QString menuPath; // empty: no menu; "/NO_DBUSMENU" means one that only the program can show
    bool showsOwnMenu = false;
    std::optional<bool> itemIsMenu;
    bool isIndicator = false; // made with the library that most GTK programs use

    QString nameForPeople() const; // title, the tool tip's title or the id; may be empty
    const ItemIcon &shownIcon() const; // depends on the status
    bool operator==(const TrayItem &) const = default;
};

struct ParsedItem {
    TrayItem item;
    QStringList complaints;
};

// Parses the plain values of all properties. It cannot fail: what is missing or has a wrong type counts as absent.
ParsedItem parseItem(const QVariantMap &properties);

// The requests that carry out a gesture, in order: if the program lacks one, the next is tried.
enum class Press { menu, contextMenu, activate, secondaryActivate };
std::vector<Press> pressOrder(const TrayItem &item, ItemGesture gesture);

// The amount to send to Scroll for this turn of the wheel (120 is a notch, up and left), which is subtracted from it:
// most programs count in those units, indicators in whole notches, down and right.
QPoint takeScroll(const TrayItem &item, QPoint &by);

} // namespace brimshade::desktop::tray
