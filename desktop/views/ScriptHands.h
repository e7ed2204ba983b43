#pragma once
#include "WindowInput.h"

namespace brimshade::desktop {

// The pointer and the keyboard of a script, on the windows that show the desktop. Main thread; points in display space.
class ScriptHands {
public:
    struct Aim {
        WindowInput *input = nullptr; // null: the point is over none of this program's windows
        QPointF inWindow;
    };
    // grab: the window that was pressed, which gets every point until all buttons are up; null: the window at the
    // point.
    using AimAt = std::function<Aim(QPointF display, WindowInput *grab)>;
    using KeyTarget = std::function<WindowInput *()>; // the window that the session gives keys to; or null

    // The router is told what happens outside all windows, as the session would tell it.
    ScriptHands(AimAt aimAt, KeyTarget keyTarget, InputRouter &router);

    void movePointer(QPointF to, std::uint64_t modifierFlags);
    void press(MouseButton button, std::uint64_t modifierFlags);
    void release(MouseButton button, std::uint64_t modifierFlags);
    void scroll(QPoint by, std::uint64_t modifierFlags);
    void key(const platform::Event &event);

private:
    Aim aim() const;

    const AimAt m_aimAt;
    const KeyTarget m_keyTarget;
    InputRouter &m_router;
    QPointF m_pointer;
    Qt::MouseButtons m_held;
    WindowInput *m_grab = nullptr;
};

} // namespace brimshade::desktop
