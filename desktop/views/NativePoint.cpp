#include "NativePoint.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QPoint nativePoint(QPointF global)
{
    const QScreen *screen = QGuiApplication::screenAt(global.toPoint());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen || QGuiApplication::platformName() != "xcb"_L1)
        return global.toPoint();
    const QPointF origin = screen->geometry().topLeft(); // a screen's origin is already in pixels
    return (origin + (global - origin) * screen->devicePixelRatio()).toPoint();
}

} // namespace brimshade::desktop
