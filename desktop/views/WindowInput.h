#pragma once
#include "desktop/core/InputRouter.h"

#include <QEvent>
#include <QObject>
#include <QPointF>
#include <functional>
#include <optional>

class QMouseEvent;
class QQuickWindow;
class QWheelEvent;

namespace brimshade::desktop {

class MenuController;

// Sees every input event of one of the toolkit's windows before Qt Quick does: asks the router what it means, and lets
// events for a view through. Also sends such events, for a script. Main thread.
class WindowInput : public QObject {
    Q_OBJECT
public:
    using ToDisplay =
        std::function<QPointF(QPointF inWindow)>; // also of points outside the window, while it has a grab

    WindowInput(QQuickWindow &window, ToDisplay toDisplay, InputRouter &router, MenuController &menu);

    // button: none for a move; held: the buttons that are down after the event.
    void send(QEvent::Type type, QPointF inWindow, Qt::MouseButton button, Qt::MouseButtons held,
              std::uint64_t modifierFlags);
    void sendWheel(QPointF inWindow, QPoint by, std::uint64_t modifierFlags); // 120 is a notch, up and left
    void sendKey(const platform::Event &event); // down and up; code and characters arrive exactly as given

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void handMoved(); // the pointer follows the hand again

private:
    // Each returns whether to keep the event from Qt Quick.
    bool takeMove(const QMouseEvent &event);
    bool takePress(const QMouseEvent &event);
    bool takeRelease(const QMouseEvent &event);
    bool takeKey(QEvent &event);
    bool takeWheel(const QWheelEvent &event);

    void hoverAnew();

    QQuickWindow &m_window;
    const ToDisplay m_toDisplay;
    InputRouter &m_router;
    MenuController &m_menu;
    Target m_pressTarget = Target::elsewhere;
    std::optional<QPointF> m_hand; // where the hand left the pointer in the window; absent: it never came, or has left
    std::optional<platform::Event> m_verbatim; // the script's key that is being sent
};

} // namespace brimshade::desktop
