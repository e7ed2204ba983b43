#pragma once
#include "DrawnItem.h"

#include <QColor>
#include <QPointF>

namespace brimshade::ui {

// A rounded rectangle with a plain or gradient fill and a stroke inside its edge. To fade or highlight it, change
// opacity rather than a colour: a colour is a new picture.
// The base has its full name: the QML type registrar looks it up by that spelling.
class RoundedShape : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(RoundedShape)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)
    Q_PROPERTY(bool continuous MEMBER m_continuous NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor strokeColor MEMBER m_strokeColor NOTIFY changed)
    Q_PROPERTY(double strokeWidth MEMBER m_strokeWidth NOTIFY changed)
    Q_PROPERTY(Gradient gradient MEMBER m_gradient NOTIFY changed)
    Q_PROPERTY(QColor endColor MEMBER m_endColor NOTIFY changed)
    Q_PROPERTY(QPointF center MEMBER m_center NOTIFY changed)
    Q_PROPERTY(double startRadius MEMBER m_startRadius NOTIFY changed)
    Q_PROPERTY(double endRadius MEMBER m_endRadius NOTIFY changed)
    // A shadow without offset; the radius is its standard deviation and it reaches three of them beyond the item.
    Q_PROPERTY(double glowRadius MEMBER m_glowRadius NOTIFY changed)
    Q_PROPERTY(QColor glowColor MEMBER m_glowColor NOTIFY changed)

public:
    // From color to endColor: downwards, from top leading to bottom trailing, or around `center`
    // (a unit point) from startRadius to endRadius.
    enum Gradient { NoGradient, Vertical, Diagonal, Radial };
    Q_ENUM(Gradient)

    explicit RoundedShape(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QByteArray pictureKey() const override;
    QRectF pictureRect() const override;
    void draw(QPainter &painter, double scale) const override;

private:
    QBrush brush() const;
    void drawGlow(QPainter &painter, const QPainterPath &outline, double scale) const;

    double m_radius = 0;
    bool m_continuous = true;
    QColor m_color = Qt::transparent;
    QColor m_strokeColor = Qt::transparent;
    double m_strokeWidth = 0;
    Gradient m_gradient = NoGradient;
    QColor m_endColor = Qt::transparent;
    QPointF m_center{0.5, 0.5};
    double m_startRadius = 0;
    double m_endRadius = 0;
    double m_glowRadius = 0;
    QColor m_glowColor;
};

} // namespace brimshade::ui
