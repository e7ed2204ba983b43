#include "WaylandGlobals.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <algorithm>
#include <cstring>
#include <qpa/qplatformnativeinterface.h>
#include <viewporter-client.h>
#include <wayland-client.h>
#include <wlr-foreign-toplevel-management-unstable-v1-client.h>
#include <wlr-layer-shell-unstable-v1-client.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

// The versions whose events we handle.
constexpr std::uint32_t kLayerShellVersion = 4;
constexpr std::uint32_t kToplevelVersion = 3;
constexpr std::uint32_t kOutputVersion = 2; // at least
constexpr std::uint32_t kOutputReleaseVersion = 3;
constexpr std::uint32_t kLayerShellDestroyVersion = 3;

template <class Proxy>
Proxy *versioned(wl_registry *registry, std::uint32_t name, const wl_interface &interface, std::uint32_t version)
{
    return static_cast<Proxy *>(wl_registry_bind(registry, name, &interface, version));
}

} // namespace

WaylandGlobals::WaylandGlobals(wl_display *display) : m_display(display), m_registry(wl_display_get_registry(display))
{
    static constexpr wl_registry_listener kListener{
        [](void *self, wl_registry *, std::uint32_t name, const char *interface, std::uint32_t version) {
            static_cast<WaylandGlobals *>(self)->add(name, interface, version);
        },
        [](void *self, wl_registry *, std::uint32_t name) { static_cast<WaylandGlobals *>(self)->remove(name); }};
    wl_registry_add_listener(m_registry, &kListener, this);
}

WaylandGlobals::~WaylandGlobals()
{
    m_seats.clear();
    for (wl_output *output : m_outputs) {
        if (wl_output_get_version(output) >= kOutputReleaseVersion)
            wl_output_release(output);
        else
            wl_output_destroy(output);
    }
    if (m_layerShell && zwlr_layer_shell_v1_get_version(m_layerShell) >= kLayerShellDestroyVersion)
        zwlr_layer_shell_v1_destroy(m_layerShell);
    else if (m_layerShell)
        wl_proxy_destroy(reinterpret_cast<wl_proxy *>(m_layerShell));
    if (m_viewporter)
        wp_viewporter_destroy(m_viewporter);
    if (m_shm)
        wl_shm_destroy(m_shm);
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    wl_registry_destroy(m_registry);
}

std::expected<std::unique_ptr<WaylandGlobals>, QString> WaylandGlobals::bind(wl_display *display)
{
    std::unique_ptr<WaylandGlobals> globals(new WaylandGlobals(display));
    waitForAnswer(display);
    const QString missing = globals->missing();
    if (missing.isEmpty())
        return globals;
    return std::unexpected(
        u"this Wayland compositor does not offer %1, without which there is no menu bar; an X11 session "
        "does not need it, and sway, labwc, Hyprland, river, wayfire and KWin offer it"_s.arg(missing));
}

void WaylandGlobals::add(std::uint32_t name, const char *interface, std::uint32_t version)
{
    const auto is = [&](const wl_interface &known) { return std::strcmp(interface, known.name) == 0; };
    if (is(wl_compositor_interface))
        m_compositor = versioned<wl_compositor>(m_registry, name, wl_compositor_interface, 1);
    else if (is(wl_shm_interface))
        m_shm = versioned<wl_shm>(m_registry, name, wl_shm_interface, 1);
    else if (is(wp_viewporter_interface))
        m_viewporter = versioned<wp_viewporter>(m_registry, name, wp_viewporter_interface, 1);
    else if (is(zwlr_layer_shell_v1_interface))
        m_layerShell = versioned<zwlr_layer_shell_v1>(m_registry, name, zwlr_layer_shell_v1_interface,
                                                      std::min(version, kLayerShellVersion));
    else if (is(zwlr_foreign_toplevel_manager_v1_interface))
        m_toplevelManager = {name, std::min(version, kToplevelVersion)};
    else if (is(wl_output_interface) && version >= kOutputVersion)
        addOutput(name, std::min(version, kOutputReleaseVersion));
    else if (is(wl_seat_interface))
        m_seats.push_back(std::make_unique<WaylandSeat>(
            versioned<wl_seat>(m_registry, name, wl_seat_interface, std::min(version, WaylandSeat::kVersion)), name,
            [this](wl_surface *surface) {
                if (m_pressed)
                    m_pressed(surface);
            }));
}

void WaylandGlobals::addOutput(std::uint32_t name, std::uint32_t version)
{
    static const wl_output_listener kListener = [] {
        wl_output_listener listener{};
        listener.geometry = [](void *, wl_output *, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                               std::int32_t, const char *, const char *, std::int32_t) {};
        listener.mode = [](void *, wl_output *, std::uint32_t, std::int32_t, std::int32_t, std::int32_t) {};
        listener.scale = [](void *, wl_output *, std::int32_t) {};
        listener.done = [](void *self, wl_output *) {
            if (const auto &changed = static_cast<const WaylandGlobals *>(self)->m_outputChanged)
                changed();
        };
        return listener;
    }();
    m_outputs.push_back(versioned<wl_output>(m_registry, name, wl_output_interface, version));
    wl_output_add_listener(m_outputs.back(), &kListener, this);
}

void WaylandGlobals::remove(std::uint32_t name)
{
    std::erase_if(m_seats, [name](const auto &seat) { return seat->name() == name; });
}

zwlr_foreign_toplevel_manager_v1 *WaylandGlobals::bindToplevelManager() const
{
    const auto [name, version] = m_toplevelManager;
    if (!version)
        return nullptr;
    return versioned<zwlr_foreign_toplevel_manager_v1>(m_registry, name, zwlr_foreign_toplevel_manager_v1_interface,
                                                       version);
}

QString WaylandGlobals::missing() const
{
    if (!m_layerShell)
        return QString::fromLatin1(zwlr_layer_shell_v1_interface.name);
    if (!m_viewporter)
        return QString::fromLatin1(wp_viewporter_interface.name);
    return {};
}

void waitForAnswer(wl_display *display)
{
    QEventLoop loop;
    static constexpr wl_callback_listener kListener{
        [](void *self, wl_callback *, std::uint32_t) { static_cast<QEventLoop *>(self)->quit(); }};
    wl_callback *callback = wl_display_sync(display);
    wl_callback_add_listener(callback, &kListener, &loop);
    loop.exec(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    wl_callback_destroy(callback);
}

wl_output *outputOf(QScreen *screen)
{
    return static_cast<wl_output *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForScreen("output", screen));
}

} // namespace brimshade::desktop::session
