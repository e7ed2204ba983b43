#pragma once
#include "desktop/core/InputRouter.h"

#include <QEvent>
#include <QObject>
#include <QPointF>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QQuickItem;
class QQuickWindow;
class QWheelEvent;

namespace brimshade::desktop {

class MenuController;
class SceneState;

// Takes every input event of the window before Qt Quick does: asks the router what it means, and lets through what is
// for a view. Also makes such events, for a script. Main thread.
class SceneInput : public QObject {
    Q_OBJECT
public:
    // space: the item laid out in display space.
    SceneInput(QQuickWindow &window, QQuickItem &space, InputRouter &router, SceneState &state);

    void movePointer(QPointF display, std::uint64_t modifierFlags);
    void press(MouseButton button, std::uint64_t modifierFlags);
    void release(MouseButton button, std::uint64_t modifierFlags);
    void key(const platform::Event &event);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Each answers whether Qt Quick shall not see the event.
    bool takeMove(const QMouseEvent &event);
    bool takePress(const QMouseEvent &event);
    bool takeRelease(const QMouseEvent &event);
    bool takeKey(QEvent &event);
    bool takeWheel(const QWheelEvent &event);

    QPointF toDisplay(QPointF inWindow) const;
    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, std::uint64_t modifierFlags);
    void hoverAnew();

    QQuickWindow &m_window;
    QQuickItem &m_space;
    InputRouter &m_router;
    SceneState &m_state;
    MenuController &m_menu;
    Target m_pressTarget = Target::elsewhere;
    QPointF m_hand; // where the hand left the pointer, in the window
    Qt::MouseButtons m_held; // of a script
    std::optional<platform::Event> m_verbatim; // of the script's key that is being sent
};

} // namespace brimshade::desktop
