#pragma once
#include "DockedClicks.h"
#include "DockedWindow.h"
#include "TraySelection.h"

#include <QSet>
#include <QTimer>
#include <map>

namespace brimshade::desktop::session {

// The tray of an X server's screen, into which programs dock windows: it owns the selection while nobody else does,
// holds the windows, and reports what each one shows. It runs on a thread of its own with an event loop, because it
// waits for the server.
class TrayManager : public QObject {
    Q_OBJECT
public:
    explicit TrayManager(int side); // each window's, in pixels
    ~TrayManager() override;

    void begin();
    void click(const DockedClick &click);
    void lapseClicks();

Q_SIGNALS:
    void changed(const DockedItem &item); // also for a new one
    void gone(std::uint32_t window);
    void message(const QString &text);

private:
    struct Docked {
        std::unique_ptr<DockedWindow> window;
        DockedItem told; // as last reported by changed(); without a window if never
        int emptyLooks = 0;
        bool areTextsOld = true;
    };
    using Windows = std::map<xcb_window_t, Docked>;

    void handle(const xcb_generic_event_t &event);
    void handleWish(const xcb_client_message_event_t &message);
    void handleProperty(const xcb_property_notify_event_t &change);
    void dock(xcb_window_t window);
    void mapped(xcb_window_t window, bool isMapped);
    void leave(xcb_window_t window);
    void leaveAll();
    void look(xcb_window_t window);
    void lookAtAll();
    void tell(xcb_window_t window, Docked &docked);
    void forget(Docked &docked);

    const int m_side;
    std::unique_ptr<X11Connection> m_x11;
    Windows m_windows;
    std::unique_ptr<TraySelection> m_selection;
    std::unique_ptr<DockedClicks> m_clicks;
    QSet<xcb_window_t> m_unseen; // those with new drawing that we have not looked at
    std::unique_ptr<QTimer> m_look;
    bool m_saidFull = false;
};

} // namespace brimshade::desktop::session
