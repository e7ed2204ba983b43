#pragma once
#include "PictureCache.h"

#include <QColor>
#include <QPointer>
#include <QQuickItem>
#include <qqml.h>

namespace brimshade::ui {

// The shadow that a rounded rectangle of the item's size casts around itself; it reaches beyond the item by three blur
// radii. Drawn once for any size: resizing is cheap. Place it with y for an offset, and behind what casts it: there is
// nothing under the middle of the caster.
class Shadow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed) // of the caster's corners
    Q_PROPERTY(double blur MEMBER m_blur NOTIFY changed) // standard deviation
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit Shadow(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    double reach() const; // beyond the item
    double border() const; // of the picture: everything a corner bends
    QRectF target(double scale) const;
    QImage picture(const QByteArray &key, double scale) const;

    double m_radius = 0;
    double m_blur = 0;
    QColor m_color = Qt::black;
    QPointer<PictureCache> m_cache;
    QByteArray m_shownKey;
};

} // namespace brimshade::ui
