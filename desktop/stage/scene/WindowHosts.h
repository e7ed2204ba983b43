#pragma once
#include "WindowState.h"

#include <QObject>
#include <map>
#include <memory>

class QQmlEngine;
class QQuickItem;

namespace brimshade::desktop {

class WindowStack;

// The program's windows in the scene: a frame with the content for each, from its creation to its destruction. The
// frames are children of `space`, which is laid out in display space. Main thread.
class WindowHosts : public QObject {
    Q_OBJECT
public:
    WindowHosts(WindowStack &stack, QQmlEngine &engine, QQuickItem &space);
    ~WindowHosts() override;

    QQuickItem *frameOf(const DesktopWindow *window) const; // null if it is unknown
    QQuickItem *contentOf(const DesktopWindow *window) const; // the view's root; null for a native view

private:
    class Host;
    void add(DesktopWindow *window);
    void remove(DesktopWindow *window);
    void arrange();
    void focusKeyWindow();

    WindowStack &m_stack;
    QQmlEngine &m_engine;
    QQuickItem &m_space;
    std::map<const DesktopWindow *, std::unique_ptr<Host>> m_hosts;
};

} // namespace brimshade::desktop
