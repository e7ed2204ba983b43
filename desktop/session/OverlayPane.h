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
//   rect openArea      the same for when it takes input: the window is as large from the start
//   real hitRadius     of the area's lower corners, where the window has to be cut to it
//   real drawnMargin   how far around it shadows and moves reach
// Without them the window is as large as its frame. Other properties, which it may have, are set for it:
//   bool paced         true: it creates what takes long in pieces, with frames in between
//   bool unseen        true until its first frame has been drawn, which waits for nothing that takes long
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
    void tellView(const char *property, bool value);
    void followView();
    QRect drawnArea() const;
    std::optional<QRectF> area(const char *property) const; // absent: the view has none
    std::optional<QRectF> hitArea() const { return area("hitArea"); }
    void place(QScreen &screen);
    bool takeInput(bool takes); // whether that is new
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
