#pragma once
#include "platform/Application.h"
#include "platform/EventServices.h"

#include <QObject>
#include <QPointF>
#include <array>
#include <memory>
#include <optional>

namespace brimshade::desktop {

class CommandDrag;
class EventMonitors;
class HotkeyRegistry;
class MenuBar;
class MenuHost;
class Permission;
class PointerTracking;
class ProgramApplication;
class SharedState;
class StatusBarService;
class WindowStack;

enum class MouseButton { left, right, middle };

// Who takes a pointer event, in the order in which they are asked. A press on an item of the bar with Command held
// goes to the bar before any window: it begins a drag of the item.
//   menu          a menu is open: the scene handles choosing in it and dismissing it
//   systemWindow  the permission prompt or the Accessibility page
//   window        one of the program's windows
enum class Target { menu, systemWindow, window, menuBar, elsewhere };

// Decides what input does, for a real window and a script alike: it keeps the pointer's position, tells event monitors,
// opens the bar's menus and runs Command-drags and native views' tracking. Main thread; points in display space. The
// scene passes every event through here first and hands on to its views only what comes back for them.
class InputRouter : public QObject {
    Q_OBJECT
public:
    struct Parts {
        SharedState &state;
        ProgramApplication &application;
        Permission &permission;
        WindowStack &windows;
        MenuHost &menus;
        MenuBar &menuBar;
        StatusBarService &statusBar;
        HotkeyRegistry &hotkeys;
    };
    explicit InputRouter(const Parts &parts);
    ~InputRouter() override;

    QPointF pointer() const;
    Target pointerMoved(QPointF to, std::uint64_t modifierFlags); // window: hand it to the view under it
    Target pressed(MouseButton button, std::uint64_t modifierFlags);
    Target released(MouseButton button, std::uint64_t modifierFlags); // the target of the press
    Target scrolled(QPointF at, QPoint by); // 120 is a notch of the wheel, up and left
    // Offers the key to the hotkeys, then to the local monitors if a window of this program is key. Returns the event
    // if the key window's view is to get it. While a menu is open, keys other than hotkeys are left to the scene.
    std::optional<platform::Event> keyDown(const platform::Event &event);
    // To be asked first. Whether it was a hotkey, which fires once however long it is held.
    bool takeHotkey(const platform::Event &event);

    // Handles an event that the program posted, in its turn; the pointer is there already.
    void synthetic(const platform::CGMouseEvent &event);

Q_SIGNALS:
    void pointerAt(QPointF point, Target target); // after a move without a button held
    void acted(); // a person pressed a button or a key, before anything comes of it
    void pointerWarped(); // moved by the program, not by a hand
    void syntheticHeld(bool held); // the program pressed the mouse button, or let it go

private:
    struct Press;
    struct Private;

    Target targetAt(QPointF point) const;
    Target moved(QPointF to);
    Target press(MouseButton button, std::uint64_t modifierFlags);
    Target release(MouseButton button, std::uint64_t modifierFlags);
    Target takePress(MouseButton button, std::uint64_t modifierFlags);
    Target pressInMenuBar(MouseButton button, const platform::Event &event);
    Target pressInWindow(const platform::Event &event);
    Target pressMiddle(Target target);

    std::unique_ptr<Private> m_d;
};

} // namespace brimshade::desktop
