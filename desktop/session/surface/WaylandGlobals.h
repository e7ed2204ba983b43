#pragma once
#include "desktop/session/wayland/WaylandSeat.h"

#include <QString>
#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

struct wl_compositor;
struct wl_display;
struct wl_output;
struct wl_registry;
struct wl_shm;
struct wp_viewporter;
struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_layer_shell_v1;
class QScreen;

namespace brimshade::desktop::session {

inline constexpr int kIgnoresZones = -1; // as a layer surface's exclusive zone

// The compositor's globals, bound again, in addition to Qt's own, on the same connection. Qt reads the connection and
// calls all listeners on the main thread.
class WaylandGlobals {
public:
    // Waits for one answer from the compositor.
    static std::expected<std::unique_ptr<WaylandGlobals>, QString> bind(wl_display *display);
    ~WaylandGlobals();
    Q_DISABLE_COPY_MOVE(WaylandGlobals)

    wl_display *display() const { return m_display; }
    wl_compositor *compositor() const { return m_compositor; }
    wl_shm *shm() const { return m_shm; }
    wp_viewporter *viewporter() const { return m_viewporter; }
    zwlr_layer_shell_v1 *layerShell() const { return m_layerShell; }
    // It reports all windows as soon as it is bound, so bind it when the listener is ready. The caller owns it; may be
    // null.
    zwlr_foreign_toplevel_manager_v1 *bindToplevelManager() const;

    // Called with the surface on which a button was pressed or a finger was put down.
    void setPressed(std::function<void(wl_surface *)> pressed) { m_pressed = std::move(pressed); }
    // Called when an output has changed, after Qt has learned of it.
    void setOutputChanged(std::function<void()> changed) { m_outputChanged = std::move(changed); }

private:
    explicit WaylandGlobals(wl_display *display);
    void addOutput(std::uint32_t name, std::uint32_t version);
    void add(std::uint32_t name, const char *interface, std::uint32_t version);
    void remove(std::uint32_t name);
    QString missing() const; // the name of a missing protocol, or empty

    wl_display *const m_display;
    wl_registry *const m_registry;
    wl_compositor *m_compositor = nullptr;
    wl_shm *m_shm = nullptr;
    wp_viewporter *m_viewporter = nullptr;
    zwlr_layer_shell_v1 *m_layerShell = nullptr;
    std::pair<std::uint32_t, std::uint32_t> m_toplevelManager; // name and version; 0 for none
    std::vector<std::unique_ptr<WaylandSeat>> m_seats;
    // Including unplugged ones: a surface may still be told that it leaves one, and Qt does not expect it to be
    // destroyed by then.
    std::vector<wl_output *> m_outputs;
    std::function<void(wl_surface *)> m_pressed;
    std::function<void()> m_outputChanged;
};

// Waits until the compositor has done everything requested so far. Qt's threads read the connection meanwhile:
// wl_display_roundtrip() would be a third reader, and three concurrent readers have been seen to deadlock.
void waitForAnswer(wl_display *display);

// The output that Qt knows as that screen, which is one of ShellBackend::screens().
wl_output *outputOf(QScreen *screen);

} // namespace brimshade::desktop::session
