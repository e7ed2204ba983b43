#include "NativePixels.h"

#include <QScreen>
#include <private/qhighdpiscaling_p.h>
#include <qpa/qplatformscreen.h>

namespace brimshade::desktop::session {

QRect toNative(const QRect &points, const QScreen *screen)
{
    const qreal factor = QHighDpiScaling::factor(screen);
    return QRectF(QPointF(points.topLeft()) * factor, QSizeF(points.size()) * factor).toAlignedRect();
}

QRegion toNative(const QRegion &points, const QScreen *screen)
{
    QRegion native;
    for (const QRect &part : points)
        native += toNative(part, screen);
    return native;
}

QSize fromNative(const QSize &native, const QScreen *screen)
{
    return (QSizeF(native) / QHighDpiScaling::factor(screen)).toSize();
}

QRect nativeGeometry(const QScreen *screen)
{
    return screen->handle()->geometry();
}

} // namespace brimshade::desktop::session
