#include "MenuBar.h"
#include "OwnStatusItem.h"

#include <algorithm>

namespace brimshade::desktop {

StatusBarService::StatusBarService(const Parts &parts) : m_parts(parts)
{
    connect(&parts.menuBar, &MenuBar::settled, this, &StatusBarService::barSettled);
}

StatusBarService::~StatusBarService()
{
    for (OwnStatusItem *item : m_items)
        item->forgetBar();
}

std::shared_ptr<platform::StatusItem> StatusBarService::createStatusItem(double length)
{
    auto item = std::make_shared<OwnStatusItem>(*this, length);
    m_items.push_back(item.get());
    return item;
}

OwnStatusItem *StatusBarService::itemOf(const BarEntryPointer &entry) const
{
    const auto item = std::ranges::find(m_items, entry, &OwnStatusItem::entry);
    return item == m_items.end() ? nullptr : *item;
}

void StatusBarService::barSettled()
{
    const auto items = m_items; // an observer may create or destroy one
    for (OwnStatusItem *item : items) {
        if (std::ranges::find(m_items, item) != m_items.end())
            item->barSettled();
    }
}

void StatusBarService::barChanged()
{
    for (OwnStatusItem *item : m_items)
        item->takeWidth();
}

} // namespace brimshade::desktop
