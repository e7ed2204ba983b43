#include "CommandDrag.h"
#include "MenuBar.h"
#include "platform/Application.h"

namespace brimshade::desktop {

bool CommandDrag::begin(QPointF at, std::uint64_t modifierFlags)
{
    m_entry = nullptr;
    m_wasDragged = false;
    const bool isOnBar = m_bar.isShowing() && platform::containsPoint(m_bar.frame(), at);
    if (isOnBar && (modifierFlags & platform::kCommandFlag))
        m_entry = m_bar.entryAt(at);
    if (m_entry)
        m_grip = at.x() - platform::minX(*m_entry->frame);
    return isActive();
}

void CommandDrag::dragged(QPointF to)
{
    m_wasDragged = true;
    if (m_entry->place != BarEntry::Place::movable && m_entry->place != BarEntry::Place::own)
        return;
    m_bar.hold(m_entry, to, to.x() - m_grip);
}

bool CommandDrag::end(QPointF at, std::uint64_t modifierFlags)
{
    const auto entry = std::exchange(m_entry, nullptr);
    const bool isMeant = entry && m_wasDragged && (modifierFlags & platform::kCommandFlag);
    const bool hasMoved = isMeant && m_bar.containsRow(at) && m_bar.move(entry, at.x());
    m_bar.letGo();
    return hasMoved;
}

} // namespace brimshade::desktop
