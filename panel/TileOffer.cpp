#include "TileOffer.h"

namespace brimshade::panel {

void TileOffer::setActions(model::TileActions *actions)
{
    if (m_actions == actions)
        return;
    if (m_actions)
        disconnect(m_actions, nullptr, this, nullptr);
    m_actions = actions;
    if (actions)
        connect(actions, &model::TileActions::offersChanged, this, &TileOffer::update);
    update();
    Q_EMIT sourceChanged();
}

void TileOffer::setExtraID(const QString &id)
{
    if (m_extraID == id)
        return;
    m_extraID = id;
    update();
    Q_EMIT sourceChanged();
}

void TileOffer::update()
{
    const platform::ItemOffer offer =
        m_actions && !m_extraID.isEmpty() ? m_actions->offer(m_extraID) : platform::ItemOffer();
    if (m_offer == offer)
        return;
    m_offer = offer;
    Q_EMIT changed();
}

} // namespace brimshade::panel
