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
    QString toolTip; // plain text: a title line, then more lines; empty where the item gives none
    Image overlay; // on its icon; null for none

    bool operator==(const ItemOffer &other) const
    {
        return canBeActivated == other.canBeActivated && wantsAttention == other.wantsAttention
            && toolTip == other.toolTip && overlay.isSameObject(other.overlay);
    }
};

// What a person can do with items of the bar besides pressing them. Main thread. Elements are those that a scan found;
// one that is gone offers nothing and ignores what is asked of it.
class ItemServices {
public:
    virtual ~ItemServices() = default;

    virtual ItemOffer offer(const AXUIElement &item) const = 0;
    // A text that identifies the item however often its program is started; no two items of a program share one. Empty
    // for one that is gone.
    virtual QString identity(const AXUIElement &item) const = 0;
    virtual void activate(const AXUIElement &item) = 0;
    virtual void activateSecondary(const AXUIElement &item) = 0; // what the middle button does
    virtual void scroll(const AXUIElement &item, QPoint by) = 0; // 120 is a notch of the wheel, up and left

    virtual void observeOffers(Work changed) = 0; // called when some item's offer changes
    // Called when items came, went or changed in applications whose changes a person expects to see; the bar may still
    // have to settle. Other applications are read again when they are needed.
    virtual void observeItems(Work changed) = 0;
};

} // namespace brimshade::platform
