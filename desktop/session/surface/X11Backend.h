#pragma once
#include "ConnectionWatch.h"
#include "ShellBackend.h"
#include "X11Focus.h"
#include "X11Foreground.h"
#include "X11Outside.h"
#include "desktop/session/x11/X11Connection.h"

namespace brimshade::desktop::session {

// An X server with any window manager, with or without a compositing manager.
class X11Backend : public ShellBackend {
    Q_OBJECT
public:
    static std::expected<std::unique_ptr<ShellBackend>, QString> create();

    std::unique_ptr<ShellSurface> createSurface(QQuickWindow &window, ShellSurface::Kind kind) override;
    Foreground &foreground() override { return m_foreground; }
    void watchOutside(bool on) override { m_outside.watch(on); }
    bool hearsOutside() const override { return m_outside.isOn(); }
    bool isComposited() const override { return m_isComposited; }

    xcb_connection_t *connection() const { return m_connection; } // Qt's
    xcb_atom_t atom(X11Atom atom) const { return m_watching->atom(atom); }
    X11Focus &focus() { return m_focus; }

private:
    explicit X11Backend(std::unique_ptr<X11Connection> watching);
    void watchCompositingManager();
    void readCompositingManager();

    xcb_connection_t *const m_connection;
    const std::unique_ptr<X11Connection> m_watching;
    bool m_isComposited = false;
    X11Focus m_focus;
    X11Foreground m_foreground;
    X11Outside m_outside;
    const ConnectionWatch m_watch;
};

} // namespace brimshade::desktop::session
