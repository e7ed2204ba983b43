#pragma once
#include "ui/PendingPicture.h"

#include <QQuickItem>
#include <qqml.h>

namespace brimshade::desktop {

// The part of the wallpaper seen through the bar or the dock, blurred. As it never moves, it is made once, on another
// thread; nothing is shown until it is ready.
class FrostedWallpaper : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSizeF whole MEMBER m_whole NOTIFY changed REQUIRED) // of the wallpaper, points
    Q_PROPERTY(QPointF origin MEMBER m_origin NOTIFY changed) // of this part in it
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed) // of its corners

public:
    explicit FrostedWallpaper(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QImage picture();

    QSizeF m_whole;
    QPointF m_origin;
    double m_radius = 0;
    ui::PendingPicture m_pending;
};

} // namespace brimshade::desktop
