#pragma once
#include "ui/DrawnItem.h"

namespace brimshade::desktop {

// For a screen of that size in points. Any thread.
void paintWallpaper(QPainter &painter, const QSizeF &size);

// The picture behind everything: dusk over a lake between hills. Drawn by code for the item's size.
class Wallpaper : public brimshade::ui::DrawnItem {
    Q_OBJECT
    QML_ELEMENT

protected:
    QByteArray pictureKey() const override { return "wallpaper"; }
    void draw(QPainter &painter, double scale) const override;
};

} // namespace brimshade::desktop
