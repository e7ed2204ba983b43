#pragma once
#include "DrawnItem.h"

#include <QColor>

namespace brimshade::ui {

// A plain rectangle at most a few device pixels thick, exactly as heavy as its size says: a pixel that it covers in
// part gets that share of its colour.
// The base has its full name: the QML type registrar looks it up by that spelling.
class Line : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit Line(QQuickItem *parent = nullptr);

    QRectF pictureRect() const override; // whole device pixels

Q_SIGNALS:
    void changed();

protected:
    QByteArray pictureKey() const override;
    void draw(QPainter &painter, double scale) const override;

private:
    QColor m_color = Qt::white;
};

} // namespace brimshade::ui
