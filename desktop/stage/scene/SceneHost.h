#pragma once
#include "desktop/script/ScriptHost.h"

#include <QObject>
#include <memory>

class QQmlEngine;
class QQuickItem;
class QQuickWindow;

namespace brimshade::desktop {

class Desktop;
class DesktopWindow;
class VirtualDispatch;

// The desktop as one Qt Quick scene: wallpaper, menu bar, menus, and the program's windows inside it. Main thread.
// The scene is laid out in display space: the picture shows the screen with the menu bar, one point to one unit,
// whatever the size of the window that shows it. Destroy it before the Desktop; it drops the windows' contents.
class SceneHost : public QObject, public ScriptHost {
    Q_OBJECT
public:
    // Without a window on any screen. Needs the software renderer. clock null: animations follow real time. Otherwise
    // they follow that clock; since an animation clock is a property of the thread, at most one scene with a virtual
    // clock may be alive in it.
    static std::unique_ptr<SceneHost> offscreen(Desktop &desktop, VirtualDispatch *clock, double scale = 1);
    // An ordinary window of the session, not shown yet: show quickWindow(). Closing it terminates nothing by itself.
    static std::unique_ptr<SceneHost> window(Desktop &desktop);
    ~SceneHost() override;

    QQuickWindow *quickWindow() const;
    QQmlEngine &engine() const;

    QPoint toScreen(QPointF display) const; // the session's; without a window there, the same

    void settle() override;
    std::vector<View> views() const override;
    QImage picture() override; // at the scale, or that of the window
    std::optional<QImage> picture(const QString &windowName) override;
    QQuickItem *contentOf(const DesktopWindow *window) const; // the view's root item; null for a native view
    bool isAnimating() const; // under a virtual clock: whether frames are asked of it
    QPointF toDisplay(QPointF scene) const; // from the window's coordinates, that is of quickWindow()

    void movePointer(QPointF to, std::uint64_t modifierFlags = 0) override;
    void press(MouseButton button, std::uint64_t modifierFlags = 0) override;
    void release(MouseButton button, std::uint64_t modifierFlags = 0) override;
    void scroll(QPoint by, std::uint64_t modifierFlags = 0) override;
    void key(const platform::Event &event) override;

private:
    class Private;
    explicit SceneHost(std::unique_ptr<Private> parts);
    const std::unique_ptr<Private> m_d;
};

} // namespace brimshade::desktop
