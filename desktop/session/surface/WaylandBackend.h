#pragma once
#include "ConnectionWatch.h"
#include "ShellBackend.h"
#include "SwayVersion.h"
#include "WaylandForeground.h"
#include "WaylandGlobals.h"
#include "WaylandOutside.h"

namespace brimshade::desktop::session {

// Talks to a compositor with layer-shell, over Qt's own connection.
class WaylandBackend : public ShellBackend {
    Q_OBJECT
public:
    static std::expected<std::unique_ptr<ShellBackend>, QString> create();

    std::unique_ptr<ShellSurface> createSurface(QQuickWindow &window, ShellSurface::Kind kind) override;
    Foreground &foreground() override { return m_foreground; }
    void watchOutside(bool on) override { m_outside.watch(on); }
    bool hearsOutside() const override { return m_outside.hears(); }
    bool isComposited() const override { return true; }

private:
    explicit WaylandBackend(std::unique_ptr<WaylandGlobals> globals);
    void stack(const ShellSurface *last);

    const std::unique_ptr<WaylandGlobals> m_globals;
    WaylandForeground m_foreground;
    WaylandOutside m_outside;
    const SwayVersion m_sway;
    const ConnectionWatch m_watch;
};

} // namespace brimshade::desktop::session
