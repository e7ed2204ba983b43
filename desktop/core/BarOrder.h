#pragma once
#include "BarEntry.h"

#include <vector>

namespace brimshade::desktop {

// The items of the bar from right to left: the pinned ones, then the own item and the movable ones among each other.
// Items with a fixed frame are kept apart. Main thread.
class BarOrder {
public:
    void add(const BarEntryPointer &entry); // the own item goes next to the pinned ones, others to the left end
    void remove(const BarEntryPointer &entry);

    const std::vector<BarEntryPointer> &laidOut() const { return m_laidOut; }
    const std::vector<BarEntryPointer> &fixed() const { return m_fixed; }
    std::vector<double> widths(BarEntry::Place place) const; // that those of one place take in the bar

    // After as many items as it says, pinned ones included, this entry not counted. Nothing gets right of the pinned
    // ones and those do not move. False when the order stays as it was.
    bool moveTo(const BarEntryPointer &entry, std::size_t index);

private:
    std::size_t pinnedCount() const;

    std::vector<BarEntryPointer> m_laidOut;
    std::vector<BarEntryPointer> m_fixed;
};

} // namespace brimshade::desktop
