#pragma once
#include "Foreground.h"

#include <cstdint>
#include <memory>
#include <vector>

struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace brimshade::desktop::session {

class ShownSurfaces;
class WaylandGlobals;

// Uses wlr-foreign-toplevel-management, which does not say which windows are visible: a full-screen one may be on
// another workspace. So a screen counts as covered if the last window activated on it is full-screen, and some window
// of the session is still activated, or was until Brimshade took the keys.
class WaylandForeground : public Foreground {
    Q_OBJECT
public:
    WaylandForeground(const WaylandGlobals &globals, const ShownSurfaces &shown);
    ~WaylandForeground() override;

private:
    class Toplevel;

    void add(zwlr_foreign_toplevel_handle_v1 *handle);
    void remove(const Toplevel *toplevel);
    void update();

    const ShownSurfaces &m_shown;
    zwlr_foreign_toplevel_manager_v1 *const m_manager; // may be null
    std::uint64_t m_activations = 0;
    std::vector<std::unique_ptr<Toplevel>> m_toplevels;
};

} // namespace brimshade::desktop::session
