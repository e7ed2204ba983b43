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

// The desktop as one Qt Quick scene: wallpaper, menu bar, menus, and the program's windows inside it. Main thread. The
// scene is laid out in display space: the picture shows the screen with the menu bar, one point to one unit, whatever
// the size of the window that shows it. Destroy it before the Desktop; that also drops the windows' contents.
class SceneHost : public QObject, public ScriptHost {
    Q_OBJECT
public:
    // A scene without a window on any screen. Needs the software renderer. Animations follow the clock or, if it is
    // null, real time; since an animation clock belongs to its thread, a thread may have only one scene with a virtual
    // clock at a time.
    static std::unique_ptr<SceneHost> offscreen(Desktop &desktop, VirtualDispatch *clock, double scale = 1);
    // A scene in an ordinary window, not shown yet: show quickWindow(). Closing it does not terminate anything by
    // itself.
    static std::unique_ptr<SceneHost> window(Desktop &desktop);
    ~SceneHost() override;

    QQuickWindow *quickWindow() const;
    QQmlEngine &engine() const;

    QPoint toScreen(QPointF display) const; // in the session; without a window, the same point

    void settle() override;
    std::vector<View> views() const override;
    QImage picture() override; // at the given scale, or at the window's
    std::optional<QImage> picture(const QString &windowName) override;
    QQuickItem *contentOf(const DesktopWindow *window) const; // the view's root item; null for a native view
    bool isAnimating() const; // under a virtual clock: whether it requests frames
    QPointF toDisplay(QPointF scene) const; // from the coordinates of quickWindow()

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
