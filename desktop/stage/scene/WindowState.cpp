#include "WindowState.h"

namespace brimshade::desktop {

WindowState::WindowState(DesktopWindow &window) : m_window(window)
{
    connect(&window, &DesktopWindow::changed, this, &WindowState::changed);
}

void WindowState::setDepth(double depth)
{
    if (m_depth == depth)
        return;
    m_depth = depth;
    Q_EMIT depthChanged();
}

void WindowState::close()
{
    m_window.close();
}

void WindowState::moveBy(double dx, double dy)
{
    m_window.setFrame(m_window.frame().translated(dx, -dy));
}

} // namespace brimshade::desktop
