#pragma once
#include "platform/View.h"

#include <QObject>
#include <QPointF>
#include <unordered_map>
#include <vector>

namespace brimshade::desktop {

class DesktopWindow;
class SharedState;
class WindowStack;

// Tells native views when the pointer enters and leaves their tracking areas. As in the toolkit, an area that appears
// under the pointer counts as entered without being told, a covered view is told like any other, and nobody is told
// while a button is held. Main thread.
class PointerTracking : public QObject {
    Q_OBJECT
public:
    PointerTracking(const SharedState &state, WindowStack &windows);

    void pointerMoved(QPointF to); // in display space; a warp is noticed with the next event

private:
    struct Area {
        platform::TrackingArea area;
        bool isInside;
    };
    struct Tracked {
        QSizeF size;
        std::vector<Area> areas;
    };
    void follow(DesktopWindow *window);
    void refresh(DesktopWindow *window);
    bool contains(const DesktopWindow &window, const platform::TrackingArea &area, QPointF point) const;
    void tell(DesktopWindow *window, std::size_t index, QPointF point);

    const SharedState &m_state;
    WindowStack &m_windows;
    std::unordered_map<DesktopWindow *, Tracked> m_tracked; // those on screen
};

} // namespace brimshade::desktop
