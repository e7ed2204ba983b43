#pragma once
#include "DrawnItem.h"
#include "PendingPicture.h"

namespace brimshade::ui {

// What another item draws, blurred, for while that comes or goes; give this the complement of its opacity. The picture
// is made once, on a thread of its own, and is small, as a blur has no detail. Until it is ready nothing is shown, and
// nothing is kept while the item is invisible.
class Blurred : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimshade::ui::DrawnItem *source READ source WRITE setSource NOTIFY changed REQUIRED)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed) // the blur's standard deviation, points

public:
    explicit Blurred(QQuickItem *parent = nullptr);

    DrawnItem *source() const { return m_source; }
    void setSource(DrawnItem *source);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QImage picture(double scale); // null until it is ready
    double reach() const; // beyond the source

    QPointer<DrawnItem> m_source;
    double m_radius = 0;
    PendingPicture m_pending;
};

} // namespace brimshade::ui
