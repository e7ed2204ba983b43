#pragma once
#include "Crowding.h"

namespace brimshade::desktop {

// The items of the bar from right to left: the pinned ones, then our own item and the movable ones among each other.
// Items with a fixed frame are kept apart. The kept order decides where those that come and go stand among each other
// and around our own item; the others stand as listed. Main thread.
class BarOrder {
public:
    // Our own item goes next to the pinned ones, a listed one to the left end, one that comes and goes where it stood.
    void add(const BarEntryPointer &entry);
    void remove(const BarEntryPointer &entry);
    bool rename(const BarEntryPointer &entry, const KeptItem &who); // false if it was that already

    const KeptOrder &kept() const { return m_kept; }
    void restore(KeptOrder kept);

    const BarEntries &laidOut() const { return m_laidOut; }
    const BarEntries &fixed() const { return m_fixed; }

    // The order that is shown when there are that many points for what is drawn. Our own item is always drawn: of those
    // that come and go, the ones that do not fit stand left of it until there is room again.
    BarEntries shown(double room) const;

    // Puts the item after index others in the shown order, which becomes the order. Pinned items do not move, and
    // nothing gets to their right. An item that comes and goes always fits where it is put right of our own item:
    // another one then makes way. False if the shown order stays as it was.
    bool drop(const BarEntryPointer &entry, std::size_t index, double room);

    // Puts our own item left of the listed ones that fill that many points from the bar's right edge.
    void placeOwn(const BarEntryPointer &own, double points);

private:
    std::size_t pinnedCount() const;
    BarEntries::iterator find(const KeptOrder::Slot &slot);
    std::vector<KeptOrder::Slot> slots() const; // of our own item and of those that come and go
    bool isAsKept() const; // whether those stand as the kept order says
    BarEntries takeKept();
    void arrange(const BarEntries &kept);
    void insertKept(const BarEntryPointer &entry);
    BarEntries crowdedOthers(const BarEntryPointer &dropped, double room) const;

    BarEntries m_laidOut;
    BarEntries m_fixed;
    KeptOrder m_kept;
};

} // namespace brimshade::desktop
