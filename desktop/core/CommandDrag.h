#pragma once
#include "BarEntry.h"

#include <QPointF>

namespace brimshade::desktop {

class MenuBar;

// Rearranges the bar's items by hand or by synthetic events: a press on an item with Command held, a drag, and a
// release in the bar's row with Command still held. Main thread; points in display space.
class CommandDrag {
public:
    explicit CommandDrag(MenuBar &bar) : m_bar(bar) { }

    // True when the press was on an item of the bar, drawn or not, and belongs to the drag from here on.
    bool begin(QPointF at, std::uint64_t modifierFlags);
    bool isActive() const { return m_entry != nullptr; }
    const BarEntryPointer &entry() const { return m_entry; }
    void dragged(QPointF to);
    bool end(QPointF at, std::uint64_t modifierFlags); // true when the order changed

private:
    MenuBar &m_bar;
    BarEntryPointer m_entry;
    double m_grip = 0; // points from the item's left edge to where it was grabbed
    bool m_wasDragged = false;
};

} // namespace brimshade::desktop
