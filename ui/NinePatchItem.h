#pragma once
#include "CachedItem.h"

#include <QMarginsF>

namespace brimshade::ui {

// An item that shows one picture whose corners keep their size while the sides between them stretch and the middle is
// left out. Drawn once for its look and device pixel ratio: resizing is cheap.
class NinePatchItem : public brimshade::ui::CachedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    using CachedItem::CachedItem;

protected:
    // Identifies everything that draw() reads besides scale. Empty: there is nothing to draw.
    virtual QByteArray pictureKey() const = 0;
    virtual double reach() const { return 0; } // of the picture beyond the item, points
    virtual double border() const = 0; // of the picture: everything a corner bends, points
    // A square of `side` pixels: both borders and a little between them. scale: device pixels per point.
    virtual QImage draw(int side, double scale) const = 0;

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    QRectF target(double scale) const;
    QImage picture(const QByteArray &key, double scale) const;

    QByteArray m_shownKey;
};

} // namespace brimshade::ui
