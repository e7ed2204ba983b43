#include "WindowInput.h"
#include "KeyMap.h"
#include "MenuController.h"
#include "MenuGeometry.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace brimshade::desktop {

namespace {

bool isForViews(Target target)
{
    return target == Target::window || target == Target::systemWindow;
}

std::optional<MouseButton> buttonOf(const QMouseEvent &event)
{
    if (event.button() == Qt::LeftButton)
        return MouseButton::left;
    if (event.button() == Qt::RightButton)
        return MouseButton::right;
    if (event.button() == Qt::MiddleButton)
        return MouseButton::middle;
    return {};
}

} // namespace

WindowInput::WindowInput(QQuickWindow &window, ToDisplay toDisplay, InputRouter &router, MenuController &menu)
    : m_window(window), m_toDisplay(std::move(toDisplay)), m_router(router), m_menu(menu)
{
    window.installEventFilter(this);
    connect(&m_menu, &MenuController::isOpenChanged, this, &WindowInput::hoverAnew, Qt::QueuedConnection);
}

bool WindowInput::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_window)
        return false;
    switch (event->type()) {
    case QEvent::MouseMove:
        return takeMove(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonPress:
        return takePress(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonDblClick: // comes after its own press
        return !isForViews(m_pressTarget);
    case QEvent::MouseButtonRelease:
        return takeRelease(*static_cast<QMouseEvent *>(event));
    case QEvent::Leave:
        m_hand.reset();
        return false;
    case QEvent::Wheel:
        return takeWheel(*static_cast<QWheelEvent *>(event));
    case QEvent::KeyPress:
        return takeKey(*event);
    case QEvent::KeyRelease:
        return m_menu.isOpen();
    default:
        return false;
    }
}

bool WindowInput::takeMove(const QMouseEvent &event)
{
    m_hand = event.position();
    const QPointF to = m_toDisplay(event.position());
    m_router.pointerMoved(to, modifierFlagsFor(event.modifiers()));
    Q_EMIT handMoved();
    if (m_menu.isOpen()) { // even while the button that opened it is held
        m_menu.pointerMoved(to);
        return true; // what is under the menu stays as it is
    }
    return event.buttons() != Qt::NoButton && !isForViews(m_pressTarget);
}

bool WindowInput::takePress(const QMouseEvent &event)
{
    const auto button = buttonOf(event);
    if (!button)
        return true;
    const QPointF at = m_toDisplay(event.position());
    const std::uint64_t flags = modifierFlagsFor(event.modifiers());
    if (at != m_router.pointer())
        m_router.pointerMoved(at, flags);
    m_pressTarget = m_router.pressed(*button, flags);
    if (m_pressTarget == Target::menu)
        m_menu.pressed(at);
    return !isForViews(m_pressTarget);
}

bool WindowInput::takeRelease(const QMouseEvent &event)
{
    const auto button = buttonOf(event);
    if (!button)
        return true;
    const Target target = m_router.released(*button, modifierFlagsFor(event.modifiers()));
    if (m_menu.isOpen())
        m_menu.released(m_toDisplay(event.position()));
    return !isForViews(target);
}

bool WindowInput::takeKey(QEvent &event)
{
    const auto key = m_verbatim ? m_verbatim : keyDownFor(static_cast<QKeyEvent &>(event));
    if (!key)
        return true;
    if (m_menu.isOpen()) {
        if (!m_router.takeHotkey(*key))
            m_menu.key(*key);
        return true;
    }
    return !m_router.keyDown(*key);
}

bool WindowInput::takeWheel(const QWheelEvent &event)
{
    if (!m_menu.isOpen())
        return m_router.scrolled(m_toDisplay(event.position()), event.angleDelta()) == Target::menuBar;
    const QPoint pixels = event.pixelDelta();
    constexpr double pointsPerStep = 3 * MenuMetrics::rowHeight / 120; // three rows for a notch of the wheel
    m_menu.wheel(m_toDisplay(event.position()), pixels.isNull() ? event.angleDelta().y() * pointsPerStep : pixels.y());
    return true;
}

// Views saw no move while the menu was open.
void WindowInput::hoverAnew()
{
    if (m_menu.isOpen() || !m_hand)
        return;
    QMouseEvent move(QEvent::MouseMove, *m_hand, *m_hand, m_window.mapToGlobal(*m_hand), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    m_window.removeEventFilter(this); // nothing has moved, so the router is not asked
    QCoreApplication::sendEvent(&m_window, &move);
    m_window.installEventFilter(this);
}

void WindowInput::send(QEvent::Type type, QPointF inWindow, Qt::MouseButton button, Qt::MouseButtons held,
                       std::uint64_t modifierFlags)
{
    QMouseEvent event(type, inWindow, inWindow, m_window.mapToGlobal(inWindow), button, held,
                      modifiersFor(modifierFlags));
    QCoreApplication::sendEvent(&m_window, &event);
}

void WindowInput::sendWheel(QPointF inWindow, QPoint by, std::uint64_t modifierFlags)
{
    QWheelEvent event(inWindow, m_window.mapToGlobal(inWindow), {}, by, Qt::NoButton, modifiersFor(modifierFlags),
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&m_window, &event);
}

void WindowInput::sendKey(const platform::Event &event)
{
    const Qt::KeyboardModifiers modifiers = modifiersFor(event.modifierFlags);
    const int key = keyFor(event.keyCode);
    const QScopedValueRollback verbatim(m_verbatim, std::optional(event));
    QKeyEvent press(QEvent::KeyPress, key, modifiers, event.characters);
    QCoreApplication::sendEvent(&m_window, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, event.characters);
    QCoreApplication::sendEvent(&m_window, &release);
}

} // namespace brimshade::desktop
