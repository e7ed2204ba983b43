#pragma once
#include "WindowPane.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/views/HostedContent.h"

namespace brimshade::desktop::session {

class SessionScreens;

// A window over everything, as the panel is. The session's window covers only that part of the frame in which the
// view draws: little is copied at each frame. The view says which by properties of its root item, in its points:
//   rect hitArea       what takes clicks now, and empty while the view takes no input, keys neither; a click beside it
//                      is a click outside
//   real hitRadius     of the area's lower corners, where the window has to be cut to it
//   real drawnMargin   how far around it shadows and moves reach
// Without them the window is as large as its frame. Other properties, which it may have, are set for it:
//   bool paced         true: it creates what takes long in pieces, with frames in between
//   bool rehearsing    true while it is drawn where nobody sees it, ahead of its first opening
class OverlayPane : public WindowPane {
    Q_OBJECT
public:
    struct Parts {
        SessionScreens &screens;
        ShellBackend &shell;
        QQmlEngine &engine;
        InputRouter &router;
        MenuController &menu;
    };
    OverlayPane(DesktopWindow &window, const Parts &parts);
    ~OverlayPane() override;

    Pane &pane() override { return m_pane; }
    QQuickItem *content() const override { return m_content->view(); }
    bool isShown() const override { return m_surface->isShown(); }
    bool isOverlay() const override { return true; }
    bool takesInput() const override { return m_takesInput; }
    bool takesKeyboard() const override { return m_takesInput && m_isKey; }
    void setKey(bool key) override;

Q_SIGNALS:
    void takesInputChanged();

private Q_SLOTS:
    void update();

private:
    void rehearse();
    void followView();
    QRect drawnArea() const;
    std::optional<QRectF> hitArea() const; // absent: the view has none
    void place(QScreen &screen);
    void takeInput(bool takes);
    void giveKeys();

    DesktopWindow &m_window;
    const Parts m_parts;
    Pane m_pane;
    QQuickItem m_holder; // as large as the window's frame, and placed as that is within the session's window
    std::unique_ptr<HostedContent> m_content;
    std::unique_ptr<ShellSurface> m_surface;
    bool m_takesInput = false;
    bool m_isKey = false;
    QRect m_drawn; // in the window's frame; only grows while it is shown
};

} // namespace brimshade::desktop::session
