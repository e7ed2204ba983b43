#include "WindowStack.h"
#include "ScreenGeometry.h"
#include "SharedState.h"
#include "WindowInfo.h"

#include <algorithm>

using namespace brimshade::platform;

namespace brimshade::desktop {

WindowStack::WindowStack(SharedState &state) : m_state(state) { }

WindowStack::~WindowStack()
{
    for (DesktopWindow *window : m_windows)
        window->m_stack = nullptr;
}

std::unique_ptr<Window> WindowStack::createWindow(const WindowAttributes &attributes, const ContentView &content)
{
    auto window = std::make_unique<DesktopWindow>(*this, attributes, content);
    m_windows.push_back(window.get());
    Q_EMIT windowAdded(window.get());
    return window;
}

DesktopWindow *WindowStack::windowAt(QPointF displayPoint) const
{
    const auto found = std::find_if(m_onScreen.rbegin(), m_onScreen.rend(),
                                    [&](const DesktopWindow *window) { return window->takesClickAt(displayPoint); });
    return found == m_onScreen.rend() ? nullptr : *found;
}

DesktopWindow *WindowStack::named(const QString &name) const
{
    const auto found = std::find_if(m_windows.rbegin(), m_windows.rend(),
                                    [&](const DesktopWindow *window) { return window->attributes().name == name; });
    return found == m_windows.rend() ? nullptr : *found;
}

void WindowStack::makeKey(DesktopWindow *window)
{
    if (window == m_keyWindow || (window && (!window->attributes().canBecomeKey || !window->isVisible())))
        return;
    DesktopWindow *before = std::exchange(m_keyWindow, window);
    publish();
    if (before)
        Q_EMIT before->changed();
    if (window)
        Q_EMIT window->changed();
    Q_EMIT keyChanged();
}

void WindowStack::activate()
{
    m_isActive = true;
}

void WindowStack::deactivate()
{
    m_isActive = false;
    makeKey(nullptr);
}

void WindowStack::orderFront(DesktopWindow *window)
{
    const bool wasVisible = std::exchange(window->m_isVisible, true);
    window->m_isCentred = false;
    const auto before = m_onScreen;
    std::erase(m_onScreen, window);
    const auto above = std::ranges::find_if(m_onScreen, [window](const DesktopWindow *other) {
        return other->attributes().level > window->attributes().level;
    });
    m_onScreen.insert(above, window);
    if (before == m_onScreen)
        return;
    publish();
    if (!wasVisible)
        Q_EMIT window->changed();
    Q_EMIT orderChanged();
}

void WindowStack::orderOut(DesktopWindow *window)
{
    if (!std::exchange(window->m_isVisible, false))
        return;
    std::erase(m_onScreen, window);
    if (m_keyWindow == window)
        giveKeysOn(window);
    publish();
    Q_EMIT window->changed();
    Q_EMIT orderChanged();
}

// While the program is active, its frontmost window that can have the keys gets them, else another application does.
void WindowStack::giveKeysOn(DesktopWindow *from)
{
    const auto next = std::find_if(m_onScreen.rbegin(), m_onScreen.rend(), [from](const DesktopWindow *window) {
        return window != from && window->attributes().canBecomeKey && !window->attributes().isPanel;
    });
    m_keyWindow = m_isActive && next != m_onScreen.rend() ? *next : nullptr;
    if (m_keyWindow)
        Q_EMIT m_keyWindow->changed();
    Q_EMIT keyChanged();
}

void WindowStack::forget(DesktopWindow *window)
{
    Q_EMIT windowRemoved(window);
    orderOut(window);
    std::erase(m_windows, window);
}

void WindowStack::screensChanged()
{
    const auto windows = m_onScreen;
    for (DesktopWindow *window : windows) {
        if ((window->attributes().styleMask & kStyleTitled) && !window->screen())
            window->applyFrame(window->centred(window->frame().size()));
        Q_EMIT window->changed(); // its display frame follows the primary screen's height
    }
    publish();
}

void WindowStack::publish()
{
    std::vector<QVariantMap> info;
    for (auto window = m_onScreen.rbegin(); window != m_onScreen.rend(); ++window)
        info.push_back(windowInfo((*window)->attributes().level, (*window)->displayFrame()));
    m_state.write([&](DisplayState &state) {
        state.windowInfo = std::move(info);
        state.keyScreen = m_keyWindow ? screenHolding(state.screens, m_keyWindow->frame()) : std::nullopt;
    });
}

} // namespace brimshade::desktop
