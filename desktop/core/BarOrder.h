#pragma once
#include "Crowding.h"

namespace brimshade::desktop {

// The items of the bar from right to left: the pinned ones, then the own item and the movable ones among each other.
// Items with a fixed frame are kept apart. Where those that come and go stand among each other and around the own item
// is the kept order's; the others stand as listed. Main thread.
class BarOrder {
public:
    // The own item goes next to the pinned ones, a listed one to the left end, one that comes and goes where it stood.
    void add(const BarEntryPointer &entry);
    void remove(const BarEntryPointer &entry);
    bool rename(const BarEntryPointer &entry, const KeptItem &who); // false when it already was

    const KeptOrder &kept() const { return m_kept; }
    void restore(KeptOrder kept);

    const BarEntries &laidOut() const { return m_laidOut; }
    const BarEntries &fixed() const { return m_fixed; }

    // As they are shown where there are that many points for what is drawn. The own item always is: of those that come
    // and go as many as do not fit stand left of it instead, until there is room again.
    BarEntries shown(double room) const;

    // After as many of the others as it says, in the order that is shown; that becomes the order. Nothing gets right of
    // the pinned ones and those do not move. What comes and goes fits where it is put right of the own item: then
    // another one does not. False when the order that is shown stays as it was.
    bool drop(const BarEntryPointer &entry, std::size_t index, double room);

    // The own item, left of the listed ones that fill that many points from the bar's right edge.
    void placeOwn(const BarEntryPointer &own, double points);

private:
    std::size_t pinnedCount() const;
    BarEntries::iterator find(const KeptOrder::Slot &slot);
    std::vector<KeptOrder::Slot> slots() const; // of the own item and of those that come and go
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
