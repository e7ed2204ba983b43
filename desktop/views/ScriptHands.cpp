#include "ScriptHands.h"

namespace brimshade::desktop {

namespace {

Qt::MouseButton toolkitButton(MouseButton button)
{
    switch (button) {
    case MouseButton::left:
        return Qt::LeftButton;
    case MouseButton::right:
        return Qt::RightButton;
    case MouseButton::middle:
        return Qt::MiddleButton;
    }
    return Qt::NoButton;
}

} // namespace

ScriptHands::ScriptHands(AimAt aimAt, KeyTarget keyTarget, InputRouter &router)
    : m_aimAt(std::move(aimAt)), m_keyTarget(std::move(keyTarget)), m_router(router)
{
}

ScriptHands::Aim ScriptHands::aim() const
{
    return m_aimAt(m_pointer, m_held ? m_grab : nullptr);
}

void ScriptHands::movePointer(QPointF to, std::uint64_t modifierFlags)
{
    m_pointer = to;
    const Aim there = aim();
    if (there.input)
        there.input->send(QEvent::MouseMove, there.inWindow, Qt::NoButton, m_held, modifierFlags);
    else
        m_router.pointerMoved(to, modifierFlags);
}

void ScriptHands::press(MouseButton button, std::uint64_t modifierFlags)
{
    const Aim there = aim();
    m_grab = there.input;
    m_held |= toolkitButton(button);
    if (there.input)
        there.input->send(QEvent::MouseButtonPress, there.inWindow, toolkitButton(button), m_held, modifierFlags);
    else
        m_router.pressed(button, modifierFlags);
}

void ScriptHands::release(MouseButton button, std::uint64_t modifierFlags)
{
    const Aim there = aim();
    m_held &= ~Qt::MouseButtons(toolkitButton(button));
    if (there.input)
        there.input->send(QEvent::MouseButtonRelease, there.inWindow, toolkitButton(button), m_held, modifierFlags);
    else
        m_router.released(button, modifierFlags);
}

void ScriptHands::scroll(QPoint by, std::uint64_t modifierFlags)
{
    const Aim there = aim();
    if (there.input)
        there.input->sendWheel(there.inWindow, by, modifierFlags);
    else
        m_router.scrolled(m_pointer, by);
}

void ScriptHands::key(const platform::Event &event)
{
    if (WindowInput *input = m_keyTarget())
        input->sendKey(event);
    else
        m_router.keyDown(event);
}

} // namespace brimshade::desktop
