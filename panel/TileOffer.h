#pragma once
#include "model/TileActions.h"
#include "platform/ItemServices.h"

#include <QPointer>
#include <QVariant>
#include <qqml.h>

namespace brimshade::panel {

// What a tile's item offers besides being pressed, at present.
class TileOffer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::model::TileActions *actions READ actions WRITE setActions NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(QString extraID READ extraID WRITE setExtraID NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(bool wantsAttention READ wantsAttention NOTIFY changed)
    Q_PROPERTY(QString toolTip READ toolTip NOTIFY changed) // empty where the item gives none
    Q_PROPERTY(QVariant overlay READ overlay NOTIFY changed) // an image on its icon; null for none

public:
    using QObject::QObject;

    model::TileActions *actions() const { return m_actions; }
    void setActions(model::TileActions *actions);
    QString extraID() const { return m_extraID; }
    void setExtraID(const QString &id);

    bool wantsAttention() const { return m_offer.wantsAttention; }
    QString toolTip() const { return m_offer.toolTip; }
    QVariant overlay() const { return QVariant::fromValue(m_offer.overlay); }

Q_SIGNALS:
    void sourceChanged();
    void changed();

private:
    void update();

    QPointer<model::TileActions> m_actions;
    QString m_extraID;
    platform::ItemOffer m_offer;
};

} // namespace brimshade::panel
