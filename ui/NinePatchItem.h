#pragma once
#include "PictureCache.h"

#include <QMarginsF>
#include <QPointer>
#include <QQuickItem>
#include <qqml.h>

namespace brimshade::ui {

// An item that shows one picture whose corners keep their size while the sides between them stretch and the middle is
// left out. Drawn once for its look and device pixel ratio: resizing is cheap.
class NinePatchItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit NinePatchItem(QQuickItem *parent = nullptr);

protected:
    // Names everything that draw() reads but scale. Empty: there is nothing to draw.
    virtual QByteArray pictureKey() const = 0;
    virtual double reach() const { return 0; } // of the picture beyond the item, points
    virtual double border() const = 0; // of the picture: everything a corner bends, points
    // A square of `side` pixels, border and border and a little between them. scale: device pixels a point.
    virtual QImage draw(int side, double scale) const = 0;

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QRectF target(double scale) const;
    QImage picture(const QByteArray &key, double scale) const;

    QPointer<PictureCache> m_cache;
    QByteArray m_shownKey;
};

} // namespace brimshade::ui
