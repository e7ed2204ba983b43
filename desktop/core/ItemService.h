#pragma once
#include "platform/ItemServices.h"

#include <vector>

namespace brimshade::desktop {

class Applications;

class ItemService : public platform::ItemServices {
public:
    explicit ItemService(Applications &applications) : m_applications(applications) { }

    platform::ItemOffer offer(const platform::AXUIElement &item) const override;
    void activate(const platform::AXUIElement &item) override;
    void activateSecondary(const platform::AXUIElement &item) override;
    void scroll(const platform::AXUIElement &item, QPoint by) override;
    void addObserver(platform::Work offersChanged) override { m_observers.push_back(std::move(offersChanged)); }

    void tellObservers();

private:
    Applications &m_applications;
    std::vector<platform::Work> m_observers;
};

} // namespace brimshade::desktop
