#pragma once
#include "Accessibility.h"
#include "Dispatch.h"
#include "Image.h"

#include <QPoint>
#include <QString>

namespace brimshade::platform {

// What an item of the bar offers beyond Accessibility.
struct ItemOffer {
    bool canBeActivated = false; // it does something besides showing its menu
    bool wantsAttention = false;
    QString toolTip; // plain, a line of title and lines of text; empty where it says nothing of itself
    Image overlay; // on its icon; null for none

    bool operator==(const ItemOffer &other) const
    {
        return canBeActivated == other.canBeActivated && wantsAttention == other.wantsAttention
            && toolTip == other.toolTip && overlay.isSameObject(other.overlay);
    }
};

// What a person can do with items of the bar but press them. Main thread. An element is one that a scan found; one that
// is gone offers nothing, and what is asked of it is ignored.
class ItemServices {
public:
    virtual ~ItemServices() = default;

    virtual ItemOffer offer(const AXUIElement &item) const = 0;
    // What it is, whenever its program runs, in some text; the same for no two items of a program. Empty for one that
    // is gone.
    virtual QString identity(const AXUIElement &item) const = 0;
    virtual void activate(const AXUIElement &item) = 0;
    virtual void activateSecondary(const AXUIElement &item) = 0; // what the middle button does
    virtual void scroll(const AXUIElement &item, QPoint by) = 0; // 120 is a notch of the wheel, up and left

    virtual void observeOffers(Work changed) = 0; // of some item
    // Items came, went or changed, of applications whose changes a person expects to see; the bar may still have to
    // settle. Other applications are read again when they are needed.
    virtual void observeItems(Work changed) = 0;
};

} // namespace brimshade::platform
