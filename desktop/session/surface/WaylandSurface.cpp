#include "WaylandSurface.h"

#include "NativePixels.h"
#include "WaylandGlobals.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QQuickWindow>
#include <qpa/qplatformnativeinterface.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client.h>

namespace brimshade::desktop::session {

namespace {

constexpr auto kNamespace = "brimshade";
constexpr std::uint32_t kTopLeft = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT;
constexpr std::uint32_t kTopEdge = kTopLeft | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;

} // namespace

WaylandSurface::WaylandSurface(QQuickWindow &window, Kind kind, const WaylandGlobals &globals)
    : ShellSurface(window, kind), m_globals(globals)
{
    window.setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    window.installEventFilter(this);
    connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            closeWithoutRole();
    });
    connect(&window, &QQuickWindow::frameSwapped, this, &WaylandSurface::awaitPainting);
}

WaylandSurface::~WaylandSurface()
{
    disconnect(&window(), nullptr, this, nullptr);
    hide();
}

bool WaylandSurface::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PlatformSurface
        && static_cast<QPlatformSurfaceEvent *>(event)->surfaceEventType()
            == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
        closeWithoutRole();
    return ShellSurface::eventFilter(watched, event);
}

// Somebody else is in the middle of hiding or destroying the window.
void WaylandSurface::closeWithoutRole()
{
    if (!m_role)
        return;
    destroyRole();
    QMetaObject::invokeMethod(this, &WaylandSurface::close, Qt::QueuedConnection);
}

void WaylandSurface::map()
{
    static constexpr zwlr_layer_surface_v1_listener kListener{
        [](void *self, zwlr_layer_surface_v1 *, std::uint32_t serial, std::uint32_t width, std::uint32_t height) {
            static_cast<WaylandSurface *>(self)->configure(serial, QSize(int(width), int(height)));
        },
        [](void *self, zwlr_layer_surface_v1 *) { static_cast<WaylandSurface *>(self)->close(); }};
    window().setScreen(screen());
    window().create();
    m_role = zwlr_layer_shell_v1_get_layer_surface(
        m_globals.layerShell(), surface(), outputOf(screen()),
        kind() == Kind::Bar ? ZWLR_LAYER_SHELL_V1_LAYER_TOP : ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, kNamespace);
    zwlr_layer_surface_v1_add_listener(m_role, &kListener, this);
    requestPlace();
    applyRegions();
    applyKeyboard();
    Q_EMIT mapped();
}

void WaylandSurface::followScale()
{
    if (!m_role || window().devicePixelRatio() == screen()->devicePixelRatio())
        return;
    unmap();
    map();
}

void WaylandSurface::enterLayerAgain()
{
    if (!m_role || kind() == Kind::Bar)
        return;
    for (const auto layer : {ZWLR_LAYER_SHELL_V1_LAYER_TOP, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY}) {
        zwlr_layer_surface_v1_set_layer(m_role, layer);
        commit();
    }
}

void WaylandSurface::unmap()
{
    destroyRole();
    window().hide();
    window().destroy();
}

void WaylandSurface::applyGeometry()
{
    if (!m_role)
        return;
    requestPlace();
    commit();
}

void WaylandSurface::applyRegions()
{
    window().setMask(wantedInputRegion());
}

void WaylandSurface::applyKeyboard()
{
    if (!m_role)
        return;
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_role,
                                                     takesKeyboard()
                                                         ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
                                                         : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
    commit();
}

void WaylandSurface::requestPlace()
{
    const bool isBar = kind() == Kind::Bar;
    const QRect place = toNative(geometry(), screen());
    zwlr_layer_surface_v1_set_anchor(m_role, isBar ? kTopEdge : kTopLeft);
    zwlr_layer_surface_v1_set_size(m_role, isBar ? 0 : place.width(), place.height());
    zwlr_layer_surface_v1_set_margin(m_role, isBar ? 0 : place.top(), 0, 0, isBar ? 0 : place.left());
    zwlr_layer_surface_v1_set_exclusive_zone(
        m_role, isBar ? toNative(QRect(0, 0, 1, zone()), screen()).height() : kIgnoresZones);
}

void WaylandSurface::configure(std::uint32_t serial, const QSize &native)
{
    zwlr_layer_surface_v1_ack_configure(m_role, serial);
    const QSize size = fromNative(native, screen());
    if (window().isVisible() && window().size() == size)
        return commit();
    window().resize(size);
    window().show();
    Q_EMIT configured(size);
}

void WaylandSurface::commit()
{
    wl_surface_commit(surface());
    wl_display_flush(m_globals.display());
}

// The compositor answers once it has painted the frame that the window has just committed.
void WaylandSurface::awaitPainting()
{
    static constexpr wl_callback_listener kListener{[](void *self, wl_callback *, std::uint32_t) {
        auto *surface = static_cast<WaylandSurface *>(self);
        wl_callback_destroy(std::exchange(surface->m_painting, nullptr));
        surface->m_isSeen = true;
        Q_EMIT surface->seen();
    }};
    if (!m_role || m_isSeen || m_painting)
        return;
    m_painting = wl_surface_frame(surface());
    wl_callback_add_listener(m_painting, &kListener, this);
    commit();
}

void WaylandSurface::destroyRole()
{
    m_isSeen = false;
    if (m_painting)
        wl_callback_destroy(std::exchange(m_painting, nullptr));
    if (m_role)
        zwlr_layer_surface_v1_destroy(std::exchange(m_role, nullptr));
}

wl_surface *WaylandSurface::surface() const
{
    return static_cast<wl_surface *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window()));
}

} // namespace brimshade::desktop::session
