#include "WindowHosts.h"
#include "desktop/core/WindowStack.h"
#include "desktop/views/HostedContent.h"

#include <QQmlEngine>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

class WindowHosts::Host {
public:
    Host(DesktopWindow &window, QQmlEngine &engine, QQuickItem &space);

    WindowState &state() { return m_state; }
    QQuickItem *frame() const { return m_frame.get(); }
    QQuickItem *content() const { return m_content ? m_content->view() : nullptr; }

private:
    WindowState m_state;
    std::unique_ptr<QQuickItem> m_frame;
    std::unique_ptr<HostedContent> m_content; // destroyed before the frame that holds it
};

WindowHosts::Host::Host(DesktopWindow &window, QQmlEngine &engine, QQuickItem &space)
    : m_state(window), m_frame(createItem(engine, u"Brimshade.Stage"_s, u"WindowFrame"_s,
                                          {{u"hosted"_s, QVariant::fromValue(&m_state)}}))
{
    if (!m_frame)
        return;
    m_frame->setParentItem(&space);
    if (auto *holder = m_frame->property("holder").value<QQuickItem *>())
        m_content = std::make_unique<HostedContent>(window, engine, *holder);
}

WindowHosts::WindowHosts(WindowStack &stack, QQmlEngine &engine, QQuickItem &space)
    : m_stack(stack), m_engine(engine), m_space(space)
{
    connect(&stack, &WindowStack::windowAdded, this, &WindowHosts::add);
    connect(&stack, &WindowStack::windowRemoved, this, &WindowHosts::remove);
    connect(&stack, &WindowStack::orderChanged, this, &WindowHosts::arrange);
    connect(&stack, &WindowStack::keyChanged, this, &WindowHosts::focusKeyWindow);
    for (DesktopWindow *window : stack.windows())
        add(window);
}

WindowHosts::~WindowHosts() = default;

void WindowHosts::add(DesktopWindow *window)
{
    m_hosts[window] = std::make_unique<Host>(*window, m_engine, m_space);
    arrange();
    focusKeyWindow();
}

void WindowHosts::remove(DesktopWindow *window)
{
    m_hosts.erase(window);
}

// Windows of different levels are at least 1 apart in depth; within a level the order counts.
void WindowHosts::arrange()
{
    constexpr double step = 1.0 / 1024;
    double order = 0;
    for (const DesktopWindow *window : m_stack.onScreen()) {
        const auto host = m_hosts.find(window);
        if (host != m_hosts.end())
            host->second->state().setDepth(window->attributes().level + ++order * step);
    }
}

// The focus goes to the item of the key window that last had it. Without a key window, no item has it.
void WindowHosts::focusKeyWindow()
{
    QQuickItem *frame = frameOf(m_stack.keyWindow());
    for (const auto &[window, host] : m_hosts) {
        if (host->frame() && host->frame() != frame)
            host->frame()->setFocus(false);
    }
    if (frame)
        frame->setFocus(true);
}

QQuickItem *WindowHosts::frameOf(const DesktopWindow *window) const
{
    const auto host = m_hosts.find(window);
    return host == m_hosts.end() ? nullptr : host->second->frame();
}

QQuickItem *WindowHosts::contentOf(const DesktopWindow *window) const
{
    const auto host = m_hosts.find(window);
    return host == m_hosts.end() ? nullptr : host->second->content();
}

} // namespace brimshade::desktop
