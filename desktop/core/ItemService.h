#pragma once
#include "platform/ItemServices.h"

#include <list>

namespace brimshade::desktop {

class Applications;

class ItemService : public platform::ItemServices {
public:
    explicit ItemService(Applications &applications) : m_applications(applications) { }

    platform::ItemOffer offer(const platform::AXUIElement &item) const override;
    QString identity(const platform::AXUIElement &item) const override;
    void activate(const platform::AXUIElement &item) override;
    void activateSecondary(const platform::AXUIElement &item) override;
    void scroll(const platform::AXUIElement &item, QPoint by) override;
    void observeOffers(platform::Work changed) override { m_ofOffers.push_back(std::move(changed)); }
    void observeItems(platform::Work changed) override { m_ofItems.push_back(std::move(changed)); }

    void tellOfOffers() const { tell(m_ofOffers); }
    void tellOfItems() const { tell(m_ofItems); }

private:
    using Observers = std::list<platform::Work>; // a handler may add another
    static void tell(const Observers &observers);

    Applications &m_applications;
    Observers m_ofOffers, m_ofItems;
};

} // namespace brimshade::desktop
