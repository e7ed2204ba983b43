#include "ItemService.h"
#include "Applications.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

ElementPointer elementOf(const AXUIElement &item)
{
    return std::static_pointer_cast<Element>(item);
}

} // namespace

ItemOffer ItemService::offer(const AXUIElement &item) const
{
    return m_applications.itemSpec(elementOf(item)).offer;
}

QString ItemService::identity(const AXUIElement &item) const
{
    return m_applications.identity(elementOf(item));
}

void ItemService::activate(const AXUIElement &item)
{
    m_applications.asked(ItemGesture::activate, elementOf(item));
}

void ItemService::activateSecondary(const AXUIElement &item)
{
    m_applications.asked(ItemGesture::secondary, elementOf(item));
}

void ItemService::scroll(const AXUIElement &item, QPoint by)
{
    if (const auto scroller = m_applications.itemSpec(elementOf(item)).scroller)
        scroller(by);
}

void ItemService::tell(const Observers &observers)
{
    for (const Work &observer : observers)
        observer();
}

} // namespace brimshade::desktop
