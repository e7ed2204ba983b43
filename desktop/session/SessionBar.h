#pragma once
#include "BarState.h"
#include "Pane.h"
#include "desktop/session/surface/ShellBackend.h"

class QQmlEngine;
class QQuickItem;

namespace brimshade::desktop {
class MenuBar;
}

namespace brimshade::desktop::session {

class SessionScreens;

// The bar's window: at the top edge of its screen, which it keeps free of other windows; shown while the menu bar shows
// and there is a screen. Main thread.
class SessionBar : public QObject {
    Q_OBJECT
public:
    struct Parts {
        MenuBar &menuBar;
        BarState &state;
        SessionScreens &screens;
        ShellBackend &shell;
        QQmlEngine &engine;
        InputRouter &router;
        MenuController &menu;
    };
    explicit SessionBar(const Parts &parts);
    ~SessionBar() override;

    Pane &pane() { return m_pane; }
    bool isShown() const { return m_surface->isShown(); }

    // A hand's presses wait while the program drags an item, which would pull their target away.
    void setWaiting(bool waiting);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();
    void replay();

    const Parts m_parts;
    Pane m_pane;
    std::unique_ptr<QQuickItem> m_view; // goes before the window
    std::unique_ptr<ShellSurface> m_surface;
    bool m_isWaiting = false;
    std::vector<std::unique_ptr<QEvent>> m_waiting;
};

} // namespace brimshade::desktop::session
