#pragma once
#include "DockedItem.h"
#include "desktop/session/x11/X11Connection.h"

#include <deque>

namespace brimshade::desktop::session {

// Clicks that wait until they can be made. First every pointer button must be released, since a menu cannot get the
// pointer before that. Then the server must tell its time, without which programs' windows do not come to the front. On
// the connection's thread.
class DockedClicks : public QObject {
    Q_OBJECT
public:
    explicit DockedClicks(X11Connection &x11);

    void ask(const DockedClick &click);
    void lapse(); // drops the waiting ones
    void makeAt(xcb_timestamp_t time);

Q_SIGNALS:
    void timeNeeded(); // answer with makeAt()
    void due(const DockedClick &click, xcb_timestamp_t time);

private:
    void handle(const xcb_generic_event_t &event);
    void proceed();
    bool isAnyHeld() const;
    void watchReleases(bool on);

    X11Connection &m_x11;
    std::deque<DockedClick> m_waiting;
    bool m_isWatching = false;
};

} // namespace brimshade::desktop::session
