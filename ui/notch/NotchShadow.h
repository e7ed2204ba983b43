#pragma once
#include "ui/Shadow.h"

namespace brimshade::ui {

// The shadow of the open panel, flares included.
// The base has its full name: the QML type registrar looks it up by that spelling.
class NotchShadow : public brimshade::ui::Shadow {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit NotchShadow(QQuickItem *parent = nullptr);

protected:
    QByteArray pictureKey() const override { return "notch" + Shadow::pictureKey(); }
    QPainterPath outline(const QRectF &rect, double scale) const override;
};

} // namespace brimshade::ui
