#pragma once
#include "CachedItem.h"

#include <QByteArray>
#include <QPainter>

namespace brimshade::ui {

// An item that shows one picture, drawn once for its content, size and device pixel ratio and shared with every equal
// item of the window. Moving, scaling and fading it never draws again. One that is never shown scaled should say
// `smooth: false`: it is then copied, not resampled.
class DrawnItem : public brimshade::ui::CachedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    using CachedItem::CachedItem;

    // For those that also show the picture in another way. Call it while the scene graph synchronises.
    QByteArray pictureName() const; // its key with size and scale; empty: there is none
    QImage picture(const QByteArray &name) const;
    // The owner of what the key names by its address.
    virtual std::shared_ptr<const void> pictureOwner() const { return {}; }
    // What the picture covers, in the item's coordinates; by default the item.
    virtual QRectF pictureRect() const;

protected:
    // Identifies everything that draw() reads besides size and scale. Empty: there is nothing to draw.
    virtual QByteArray pictureKey() const = 0;
    // With the item's coordinates, antialiased. scale: device pixels per point. While the scene graph synchronises.
    virtual void draw(QPainter &painter, double scale) const = 0;

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    QByteArray m_shownKey; // of the node's texture
    std::shared_ptr<const void> m_shownOwner; // so that nothing else gets its address
};

} // namespace brimshade::ui
