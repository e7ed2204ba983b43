#pragma once
#include "ApplicationNames.h"
#include "BarState.h"
#include "Pane.h"
#include "UnusedMemory.h"
#include "desktop/script/ScriptHost.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/views/BarTip.h"
#include "desktop/views/MenuController.h"

#include <QPointer>
#include <map>
#include <memory>

class QQmlEngine;

namespace brimshade::desktop {
class Desktop;
class DesktopWindow;
class ScriptHands;
} // namespace brimshade::desktop

namespace brimshade::desktop::session {

class MenuPanes;
class SessionBar;
class SessionScreens;
class TipPane;
class WindowPane;

// The desktop in the session that the program was started in: the bar at the top edge of a screen, the open menu and
// the program's windows, each in a window of its own. Main thread. Destroy it before the desktop and the screens.
class SessionHost : public QObject, public ScriptHost {
    Q_OBJECT
public:
    SessionHost(Desktop &desktop, SessionScreens &screens, ShellBackend &shell);
    ~SessionHost() override;

    QPoint toScreen(QPointF display) const; // in other programs' coordinates
    bool takesKeyboard() const; // the panel or a menu is open, so all of the session's keys come to this program
    // On X11, keys that other programs have grabbed also go to the window that has the keys now.
    void takeEveryKey(bool take);
    bool hearsOutside() const { return m_shell.hearsOutside(); } // a press elsewhere would close what is open
    QString windowWithKeys() const; // that gets the session's keys now; empty while another program has them

    void settle() override;
    std::vector<View> views() const override;
    QImage picture() override; // what this program shows on the bar's screen, on a transparent background
    std::optional<QImage> picture(const QString &windowName) override; // also of "bar" and "menu"
    void movePointer(QPointF to, std::uint64_t modifierFlags) override;
    void press(MouseButton button, std::uint64_t modifierFlags) override;
    void release(MouseButton button, std::uint64_t modifierFlags) override;
    void scroll(QPoint by, std::uint64_t modifierFlags) override;
    void key(const platform::Event &event) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void takesKeyboardChanged();

private:
    void addWindow(DesktopWindow *window);
    void removeWindow(DesktopWindow *window);
    void giveKeys();
    void update(); // applies what follows from the panel or a menu being open
    void pressedOutside();
    void followForeground();
    void pointerLeft(QObject *window);
    std::vector<Pane *> panes() const; // shown ones, front to back
    Pane *paneAt(QPointF display) const;
    Pane *paneOf(const WindowInput *input) const;
    WindowInput *keyInput() const; // of the window that has the keys; null while another program has them
    QRectF screenFrameAt(QPointF display) const;

    Desktop &m_desktop;
    SessionScreens &m_screens;
    ShellBackend &m_shell;
    std::unique_ptr<QQmlEngine> m_engine;
    WallClock m_clock;
    ApplicationNames m_applicationNames;
    BarState m_barState;
    BarTip m_barTip;
    MenuController m_menu;
    std::unique_ptr<SessionBar> m_bar;
    std::unique_ptr<MenuPanes> m_menus;
    std::unique_ptr<TipPane> m_tip;
    std::map<DesktopWindow *, std::unique_ptr<WindowPane>> m_windows;
    std::unique_ptr<ScriptHands> m_hands;
    UnusedMemory m_unusedMemory;
    QPointer<QWindow> m_keyTaker; // takes every key
    QObject *m_hovered = nullptr; // the window that the pointer is in; only compared
    bool m_tookKeyboard = false;
};

} // namespace brimshade::desktop::session
