#include "PointerTracking.h"
#include "SharedState.h"
#include "WindowStack.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

NativeView *nativeView(const DesktopWindow &window)
{
    const auto *view = std::get_if<std::shared_ptr<NativeView>>(&window.content());
    return view ? view->get() : nullptr;
}

} // namespace

PointerTracking::PointerTracking(const SharedState &state, WindowStack &windows) : m_state(state), m_windows(windows)
{
    connect(&windows, &WindowStack::windowAdded, this, &PointerTracking::follow);
    connect(&windows, &WindowStack::windowRemoved, this, [this](DesktopWindow *window) { m_tracked.erase(window); });
}

void PointerTracking::follow(DesktopWindow *window)
{
    if (nativeView(*window))
        connect(window, &DesktopWindow::changed, this, [this, window] { refresh(window); });
}

void PointerTracking::refresh(DesktopWindow *window)
{
    if (!window->isVisible()) {
        m_tracked.erase(window);
        return;
    }
    const QSizeF size = window->frame().size();
    if (const auto known = m_tracked.find(window); known != m_tracked.end() && known->second.size == size)
        return;
    Tracked tracked{size, {}};
    for (const TrackingArea &area : nativeView(*window)->updateTrackingAreas(size))
        tracked.areas.push_back({area, contains(*window, area, m_state.pointer())});
    m_tracked.insert_or_assign(window, std::move(tracked));
}

bool PointerTracking::contains(const DesktopWindow &window, const TrackingArea &area, QPointF point) const
{
    // In display space, like all hit-testing of the pointer: of the two edges, the upper one counts as inside.
    const QRectF inScreenSpace = area.rect.translated(window.frame().topLeft());
    return containsPoint(flipped(inScreenSpace, m_state.primaryHeight()), point);
}

void PointerTracking::pointerMoved(QPointF to)
{
    const auto windows = m_windows.onScreen(); // a handler may show, hide and destroy windows
    for (DesktopWindow *window : windows) {
        for (std::size_t index = 0; m_tracked.contains(window) && index < m_tracked[window].areas.size(); ++index)
            tell(window, index, to);
    }
}

void PointerTracking::tell(DesktopWindow *window, std::size_t index, QPointF point)
{
    Area &area = m_tracked[window].areas[index];
    const bool isActive = (area.area.options & kTrackingActiveAlways) || m_windows.isActive();
    const bool isInside = contains(*window, area.area, point);
    if (isInside == area.isInside || !isActive || !(area.area.options & kTrackingMouseEnteredAndExited))
        return;
    area.isInside = isInside;
    const auto view = std::get<std::shared_ptr<NativeView>>(window->content()); // kept for as long as its handler runs
    if (isInside)
        view->mouseEntered();
    else
        view->mouseExited();
}

} // namespace brimshade::desktop
