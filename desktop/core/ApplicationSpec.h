#pragma once
#include "DesktopDescription.h"
#include "platform/Image.h"

#include <functional>
#include <map>

namespace brimshade::desktop {

// Called on the main thread when an item is pressed, through Accessibility or by a click; the frame is the
// item's, in display space. It opens the item's menu on the MenuHost, now or when the menu has come.
using OpenItem = std::function<void(const QRectF &itemFrame)>;

// A running application as the desktop hosts it: what its description says, and what a file cannot say.
struct ApplicationSpec {
    ApplicationDescription description;
    platform::Image icon = {}; // null: made from description.icon

    // By identifier of the extra. Absent: the bar draws the description's symbol or the icon, and pressing
    // opens the description's menu.
    std::map<QString, platform::Image> itemImages = {};
    std::map<QString, OpenItem> openItem = {};
    std::map<QString, QString> toolTips = {};
};

} // namespace brimshade::desktop
