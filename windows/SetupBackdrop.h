#pragma once
#include "ui/DrawnItem.h"

#include <QPointF>
#include <QSizeF>

namespace brimshade::windows {

// What lies behind the setup: black with a warm glow from the top and a violet one from the lower right, dithered,
// since both fall off more slowly than eight bits can follow. A part that fades in downwards serves as the fade at the
// end of a scrolled view.
class SetupBackdrop : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSizeF whole MEMBER m_whole NOTIFY changed REQUIRED) // of the view, in points
    Q_PROPERTY(QPointF origin MEMBER m_origin NOTIFY changed) // of this part in it
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)
    Q_PROPERTY(bool fadesIn MEMBER m_fadesIn NOTIFY changed)

public:
    explicit SetupBackdrop(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QByteArray pictureKey() const override;
    void draw(QPainter &painter, double scale) const override;

private:
    QImage light(double scale) const;

    QSizeF m_whole;
    QPointF m_origin;
    double m_radius = 0;
    bool m_fadesIn = false;
};

} // namespace brimshade::windows
