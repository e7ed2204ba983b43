#pragma once
#include "ItemGesture.h"
#include "KeptOrder.h"
#include "SharedState.h"
#include "platform/Image.h"

#include <QPoint>
#include <functional>

namespace brimshade::desktop {

// An item of the bar as the desktop keeps it. Shared by the bar and whoever brought the item. Main thread.
struct BarEntry {
    // From right to left, one kind after the other.
    enum class Place { pinned, own, movable, fixed };

    int pid = 0;
    Place place = Place::movable;
    // Only for an item that comes and goes; the bar fills in the ordinal. Absent: it stands as it was listed.
    std::optional<KeptItem> kept;
    double width = 0; // points; the next layout uses it
    bool isAway = false; // off-screen in the next layout, whatever room there is
    std::optional<QRectF> frame; // the settled one, display space; absent until the bar has laid the item out
    ElementPointer element; // null for our own item
    std::function<void(ItemGesture)> handler; // null for our own item
    std::function<void(QPoint by)> scroller; // null: nothing scrolls

    QString identifier, title, description, symbol, label, toolTip;
    platform::Image image;
    bool wantsAttention = false;
    bool isPressed = false;
    double dragOffset = 0; // points to the right of its frame, while a hand drags it
    double shift = 0; // points to the right of its frame, to make room for another item, until the bar settles
};
using BarEntryPointer = std::shared_ptr<BarEntry>;

} // namespace brimshade::desktop
