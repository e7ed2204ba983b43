#include "ShellBackend.h"

#include "WaylandBackend.h"
#include "X11Backend.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <qpa/qplatformscreen.h>
#include <wayland-client-core.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr auto kPlatform = "QT_QPA_PLATFORM";

bool hasCompositor()
{
    wl_display *display = wl_display_connect(nullptr);
    if (display)
        wl_display_disconnect(display);
    return display;
}

bool hasXServer()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = !xcb_connection_has_error(connection);
    xcb_disconnect(connection);
    return answers;
}

std::unexpected<QString> noDisplay()
{
    return std::unexpected(u"no display: neither a Wayland compositor nor an X server answers"_s);
}

} // namespace

std::expected<void, QString> ShellBackend::prepareEnvironment()
{
    // With this, Qt gives windows with Qt::BypassWindowManagerHint no role, so that they can become layer surfaces.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    const QByteArray wanted = qgetenv(kPlatform);
    if (!wanted.isEmpty() && !wanted.startsWith("wayland") && wanted != "xcb")
        return std::unexpected(
            u"a session needs X11 or Wayland, and QT_QPA_PLATFORM is %1"_s.arg(QString::fromLocal8Bit(wanted)));
    if (wanted != "xcb" && hasCompositor()) {
        qputenv(kPlatform, "wayland");
        return {};
    }
    if (wanted.startsWith("wayland") || !hasXServer())
        return noDisplay();
    qputenv(kPlatform, "xcb");
    return {};
}

std::expected<std::unique_ptr<ShellBackend>, QString> ShellBackend::create()
{
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        return WaylandBackend::create();
    if (QGuiApplication::platformName() == "xcb"_L1)
        return X11Backend::create();
    return noDisplay();
}

void ShellBackend::end(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

QList<QScreen *> ShellBackend::screens()
{
    auto screens = QGuiApplication::screens();
    screens.removeIf([](const QScreen *screen) { return screen->handle()->isPlaceholder(); });
    return screens;
}

} // namespace brimshade::desktop::session
