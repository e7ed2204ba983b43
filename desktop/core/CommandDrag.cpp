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
    return isActive();
}

bool CommandDrag::end(QPointF at, std::uint64_t modifierFlags)
{
    const auto entry = std::exchange(m_entry, nullptr);
    const bool isMeant = entry && m_wasDragged && (modifierFlags & platform::kCommandFlag);
    return isMeant && m_bar.containsRow(at) && m_bar.move(entry, at.x());
}

} // namespace brimshade::desktop
