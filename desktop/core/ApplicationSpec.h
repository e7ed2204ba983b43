#pragma once
#include "DesktopDescription.h"
#include "ItemGesture.h"
#include "platform/Image.h"
#include "platform/ItemServices.h"

#include <QPoint>
#include <functional>
#include <map>
#include <optional>

namespace brimshade::desktop {

// Carries out what a person asks of an item: it opens the item's menu on the MenuHost, now or when the menu has come,
// or does what else the item does. Main thread; the frame is the item's, in display space.
using ItemHandler = std::function<void(ItemGesture gesture, const QRectF &itemFrame)>;

// Scrolls over an item; 120 is a notch of the wheel, up and left.
using ItemScroller = std::function<void(QPoint by)>;

// Identifies an item that comes and goes, so that it keeps its place.
struct ItemOrigin {
    QString instance; // this very item for as long as it is there, whatever it says about itself
    QString program, id; // what it is, whenever its program runs
};

// What a description cannot say about an extra.
struct ItemSpec {
    platform::Image image = {}; // null: the bar draws the description's symbol or the application's icon
    ItemHandler handler = {}; // null: every gesture but secondary and activate opens the description's menu
    ItemScroller scroller = {}; // null: nothing happens
    QString label = {}; // beside the image
    platform::ItemOffer offer = {};
    bool isAway = false; // passive, it has nothing to report: it stands off-screen
    std::optional<ItemOrigin> origin = {}; // absent: the item is a listed one
};

// A running application as the desktop hosts it: what its description says, and what a file cannot say.
struct ApplicationSpec {
    ApplicationDescription description;
    platform::Image icon = {}; // null: made from description.icon
    std::map<QString, ItemSpec> items = {}; // by identifier of the extra
    bool isLive = false; // people see its items change while they look
};

} // namespace brimshade::desktop
