#pragma once
#include "NinePatchItem.h"

#include <QColor>
#include <QPainterPath>

namespace brimshade::ui {

// The shadow that a rounded rectangle of the item's size casts around itself; it reaches beyond the item by three blur
// radii. Place it with y for an offset, and behind what casts it: there is nothing under the middle of the caster.
// The base has its full name: the QML type registrar looks it up by that spelling.
class Shadow : public brimshade::ui::NinePatchItem {
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
    QByteArray pictureKey() const override;
    double reach() const override;
    double border() const override;
    QImage draw(int side, double scale) const override;
    // The caster, as large as the rectangle. A subclass with another one has its own key.
    virtual QPainterPath outline(const QRectF &rect, double scale) const;

private:
    double m_radius = 0;
    double m_blur = 0;
    QColor m_color = Qt::black;
};

} // namespace brimshade::ui
