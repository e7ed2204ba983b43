#include "WaylandBackend.h"

#include "WaylandSurface.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>
#include <ranges>
#include <wayland-client-core.h>

namespace brimshade::desktop::session {

std::expected<std::unique_ptr<ShellBackend>, QString> WaylandBackend::create()
{
    auto globals = WaylandGlobals::bind(static_cast<wl_display *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("wl_display")));
    if (!globals)
        return std::unexpected(globals.error());
    return std::unique_ptr<ShellBackend>(new WaylandBackend(*std::move(globals)));
}

WaylandBackend::WaylandBackend(std::unique_ptr<WaylandGlobals> globals)
    : m_globals(std::move(globals)), m_foreground(*m_globals, shownSurfaces()), m_outside(*m_globals, shownSurfaces()),
      m_sway(qEnvironmentVariable("SWAYSOCK"), wl_display_get_fd(m_globals->display()))
{
    m_globals->setPressed([this](const wl_surface *surface) {
        if (m_outside.isOf(surface))
            Q_EMIT pressedOutside();
    });
    m_globals->setOutputChanged([this] {
        for (ShellSurface *surface : shownSurfaces().inOrder())
            static_cast<WaylandSurface *>(surface)->followScale();
    });
}

std::unique_ptr<ShellSurface> WaylandBackend::createSurface(QQuickWindow &window, ShellSurface::Kind kind)
{
    auto surface = std::make_unique<WaylandSurface>(window, kind, *m_globals);
    shownSurfaces().add(*surface);
    connect(surface.get(), &WaylandSurface::mapped, this, [this, last = surface.get()] { stack(last); });
    connect(surface.get(), &WaylandSurface::seen, &m_outside, &WaylandOutside::follow);
    return surface;
}

// The surface that was shown last lies over the others and gets the keys before them.
void WaylandBackend::stack(const ShellSurface *last)
{
    if (!m_sway.stacksDownwards())
        return;
    for (ShellSurface *other : shownSurfaces().inOrder() | std::views::reverse) {
        if (other != last)
            static_cast<WaylandSurface *>(other)->enterLayerAgain();
    }
}

} // namespace brimshade::desktop::session
