#include "CommandDrag.h"
#include "MenuBar.h"
#include "platform/Application.h"

namespace brimshade::desktop {

bool CommandDrag::begin(QPointF at, std::uint64_t modifierFlags)
{
    m_entry = nullptr;
    m_from = at;
    m_wasDragged = false;
    const bool isOnBar = m_bar.isShowing() && platform::containsPoint(m_bar.frame(), at);
    if (isOnBar && (modifierFlags & platform::kCommandFlag))
        m_entry = m_bar.entryAt(at);
    return isActive();
}

void CommandDrag::dragged(QPointF to)
{
    m_wasDragged = true;
    if (m_entry->place != BarEntry::Place::movable && m_entry->place != BarEntry::Place::own)
        return;
    m_entry->dragOffset = to.x() - m_from.x();
    m_bar.lookChanged();
}

bool CommandDrag::end(QPointF at, std::uint64_t modifierFlags)
{
    const auto entry = std::exchange(m_entry, nullptr);
    const bool isMeant = entry && m_wasDragged && (modifierFlags & platform::kCommandFlag);
    if (isMeant && m_bar.containsRow(at) && m_bar.move(entry, at.x()))
        return true;
    if (entry && std::exchange(entry->dragOffset, 0) != 0)
        m_bar.lookChanged(); // back in its place
    return false;
}

} // namespace brimshade::desktop
