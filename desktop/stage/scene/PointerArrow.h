#pragma once
#include "ui/DrawnItem.h"

namespace brimshade::desktop {

// The pointer's arrow; its tip is the item's origin.
class PointerArrow : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PointerArrow(QQuickItem *parent = nullptr);

protected:
    QByteArray pictureKey() const override { return "pointer"; }
    QRectF pictureRect() const override;
    void draw(QPainter &painter, double scale) const override;
};

} // namespace brimshade::desktop
