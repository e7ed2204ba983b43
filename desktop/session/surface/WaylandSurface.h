#pragma once
#include "ShellSurface.h"

#include <QSize>
#include <cstdint>

struct wl_callback;
struct wl_surface;
struct zwlr_layer_surface_v1;

namespace brimshade::desktop::session {

class WaylandGlobals;

// A layer surface. Qt makes the window's wl_surface without a role, since the window bypasses the window manager. The
// role is destroyed before the wl_surface, whoever takes that away, or the compositor ends the connection.
class WaylandSurface : public ShellSurface {
    Q_OBJECT
public:
    WaylandSurface(QQuickWindow &window, Kind kind, const WaylandGlobals &globals);
    ~WaylandSurface() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
    void followScale(); // of its screen: Qt's window keeps the scale that it was made with
    void enterLayerAgain(); // as if it had been shown last
    bool isSeen() const { return m_isSeen; } // the compositor has painted it since it was shown

Q_SIGNALS:
    void mapped();
    void seen();

private:
    void map() override;
    void unmap() override;
    void applyGeometry() override;
    void applyRegions() override;
    void applyKeyboard() override;

    void requestPlace();
    void configure(std::uint32_t serial, const QSize &native);
    void commit();
    void awaitPainting();
    void destroyRole();
    void closeWithoutRole();
    wl_surface *surface() const; // null when Qt has none

    const WaylandGlobals &m_globals;
    zwlr_layer_surface_v1 *m_role = nullptr; // while it is mapped
    wl_callback *m_painting = nullptr; // while the first frame waits for the compositor
    bool m_isSeen = false;
};

} // namespace brimshade::desktop::session
