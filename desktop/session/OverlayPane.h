#pragma once
#include "WindowPane.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/views/HostedContent.h"

namespace brimshade::desktop::session {

class SessionScreens;

// A window over everything, like the panel. The session's window covers only the part of the frame in which the view
// draws, so that little is copied at each frame. Properties of the view's root item, in its points, say which part:
//   rect hitArea       what takes clicks now; empty while the view takes no input, not even keys; a click beside it
//                      is a click outside
//   rect openArea      what hitArea will be once it takes input: the window has that size from the start
//   real hitRadius     of the area's lower corners, in case the window has to be cut to it
//   real drawnMargin   how far around it shadows and moves reach
// Without them the window is as large as its frame. These properties are set on the view if it has them:
//   bool paced         true: it creates slow things piece by piece, with frames in between
//   bool unseen        true until its first frame has been drawn, which must not wait for anything slow
//   bool rehearsing    true while it is drawn out of sight before its first opening
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
    bool takeInput(bool takes); // returns whether that changed
    void giveKeys();

    DesktopWindow &m_window;
    const Parts m_parts;
    Pane m_pane;
    QQuickItem m_holder; // matches the window's frame, within the session's window
    std::unique_ptr<HostedContent> m_content;
    std::unique_ptr<ShellSurface> m_surface;
    bool m_takesInput = false;
    bool m_isKey = false;
    QRect m_drawn; // in the window's frame; only grows while it is shown
};

} // namespace brimshade::desktop::session
