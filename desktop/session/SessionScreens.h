#pragma once
#include "ScreenArrangement.h"

#include <QObject>
#include <QPointF>

class QScreen;
class QTimer;

namespace brimshade::desktop::session {

// The session's screens, described as the desktop's own, and the conversion between display space and the toolkit's.
// Main thread; needs the application object.
class SessionScreens : public QObject {
    Q_OBJECT
public:
    explicit SessionScreens(const ScreenChoice &choice);
    ~SessionScreens() override;

    void choose(const ScreenChoice &choice);
    const ScreenChoice &choice() const { return m_choice; }

    std::vector<ScreenDescription> descriptions() const; // the one with the bar first; none while there is no screen
    QScreen *barScreen() const; // null while there is none
    QScreen *screenAt(QPointF display) const; // the bar's screen if none holds the point
    QPointF originOf(const QScreen *screen) const; // its top left corner in display space

Q_SIGNALS:
    void changed(); // once per turn of the event loop, however many changes there were

private:
    void watch(QScreen *screen);
    void arrange();

    ScreenChoice m_choice;
    std::vector<ArrangedScreen> m_arranged;
    std::vector<QScreen *> m_screens; // as arranged
    std::unique_ptr<QTimer> m_soon;
};

} // namespace brimshade::desktop::session
