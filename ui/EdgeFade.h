#pragma once
#include "NinePatchItem.h"

#include <QColor>

namespace brimshade::ui {

// Fades what lies under it into a colour towards its own edges, so that nothing looks cut off there. The base has its
// full name: the QML type registrar looks it up by that spelling.
class EdgeFade : public brimshade::ui::NinePatchItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double depth MEMBER m_depth NOTIFY changed) // from the edge, where all is covered, to where nothing is
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed) // of the corners of what is not covered
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit EdgeFade(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QByteArray pictureKey() const override;
    double border() const override;
    QImage draw(int side, double scale) const override;

private:
    double m_depth = 0;
    double m_radius = 0;
    QColor m_color = Qt::black;
};

} // namespace brimshade::ui
