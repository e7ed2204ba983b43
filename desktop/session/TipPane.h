#pragma once
#include "Pane.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/views/BarTip.h"

class QQmlEngine;
class QQuickItem;

namespace brimshade::desktop::session {

class SessionScreens;

// The tooltip of the bar's items in a window of its own, over everything; it takes neither clicks nor keys. Main
// thread.
class TipPane : public QObject {
    Q_OBJECT
public:
    struct Parts {
        BarTip &tip;
        SessionScreens &screens;
        ShellBackend &shell;
        QQmlEngine &engine;
        InputRouter &router;
        MenuController &menu;
    };
    explicit TipPane(const Parts &parts);
    ~TipPane() override;

    Pane &pane() { return m_pane; }

private:
    void update();

    const Parts m_parts;
    Pane m_pane;
    std::unique_ptr<QQuickItem> m_space; // laid out in display space, as the view is
    std::unique_ptr<QQuickItem> m_view;
    std::unique_ptr<ShellSurface> m_surface;
};

} // namespace brimshade::desktop::session
