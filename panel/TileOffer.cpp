#include "TileOffer.h"
#include "ui/binding/Follow.h"

namespace brimshade::panel {

void TileOffer::setActions(model::TileActions *actions)
{
    if (!ui::follow(*this, m_actions, actions))
        return;
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
