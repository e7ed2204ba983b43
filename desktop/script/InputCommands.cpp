#include "ScriptHost.h"
#include "ScriptRunner.h"
#include "desktop/views/KeyMap.h"

#include <QTextBoundaryFinder>
#include <cmath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr int kDragSteps = 10;

// Keys that an ANSI keyboard lacks have code 0, like text from an input method.
std::uint16_t keyCodeForCharacter(const QString &character)
{
    const auto key = static_cast<Qt::Key>(character.at(0).toUpper().unicode());
    return keyCodeFor(key, false).value_or(0);
}

MouseButton buttonOf(Arguments &arguments)
{
    const QString button = arguments.text(u"button"_s, u"left"_s);
    if (button == "right"_L1)
        return MouseButton::right;
    if (button == "middle"_L1)
        return MouseButton::middle;
    if (button != "left"_L1)
        arguments.fail(u"button"_s, u"\"left\", \"right\" or \"middle\""_s);
    return MouseButton::left;
}

} // namespace

void ScriptRunner::clickAt(QPointF at, MouseButton button, std::uint64_t modifiers)
{
    m_host.movePointer(at, modifiers);
    m_clock.settle();
    m_host.press(button, modifiers);
    m_clock.settle();
    m_host.release(button, modifiers);
}

ScriptRunner::Result ScriptRunner::move(Arguments &arguments)
{
    const QPointF to = arguments.point(u"to"_s);
    const auto modifiers = arguments.modifiers();
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_host.movePointer(to, modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::click(Arguments &arguments)
{
    const QPointF at = arguments.point(u"at"_s);
    const MouseButton button = buttonOf(arguments);
    const auto modifiers = arguments.modifiers();
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    clickAt(at, button, modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::press(Arguments &arguments)
{
    const QPointF at = arguments.point(u"at"_s);
    const MouseButton button = buttonOf(arguments);
    const auto modifiers = arguments.modifiers();
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_host.movePointer(at, modifiers);
    m_clock.settle();
    m_host.press(button, modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::release(Arguments &arguments)
{
    const bool moves = arguments.has(u"at"_s);
    const QPointF at = moves ? arguments.point(u"at"_s) : QPointF();
    const MouseButton button = buttonOf(arguments);
    const auto modifiers = arguments.modifiers();
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (moves) {
        m_host.movePointer(at, modifiers);
        m_clock.settle();
    }
    m_host.release(button, modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::drag(Arguments &arguments)
{
    const QPointF from = arguments.point(u"from"_s);
    const QPointF to = arguments.point(u"to"_s);
    const auto modifiers = arguments.modifiers();
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_host.movePointer(from, modifiers);
    m_clock.settle();
    m_host.press(MouseButton::left, modifiers);
    for (int step = 1; step <= kDragSteps; ++step) {
        m_clock.settle();
        m_host.movePointer(from + (to - from) * step / kDragSteps, modifiers);
    }
    m_clock.settle();
    m_host.release(MouseButton::left, modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::scroll(Arguments &arguments)
{
    constexpr double notch = 120, most = 100; // wheel units; notches
    const QPointF at = arguments.point(u"at"_s);
    const QPointF by = arguments.point(u"by"_s);
    const auto modifiers = arguments.modifiers();
    if (std::abs(by.x()) > most || std::abs(by.y()) > most)
        arguments.fail(u"by"_s, u"at most %1 notches"_s.arg(most));
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_host.movePointer(at, modifiers);
    m_clock.settle();
    m_host.scroll((by * notch).toPoint(), modifiers);
    return {};
}

ScriptRunner::Result ScriptRunner::key(Arguments &arguments)
{
    platform::Event event;
    const int code = arguments.integer(u"code"_s);
    event.characters = arguments.text(u"characters"_s, QString());
    event.modifierFlags = arguments.modifiers();
    if (code < 0 || code > 0xffff)
        arguments.fail(u"code"_s, u"0 to 65535"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    event.keyCode = static_cast<std::uint16_t>(code);
    m_host.key(event);
    return {};
}

ScriptRunner::Result ScriptRunner::type(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to = graphemes.toNextBoundary(); to >= 0; from = to, to = graphemes.toNextBoundary()) {
        platform::Event event;
        event.characters = text.mid(from, to - from);
        event.keyCode = keyCodeForCharacter(event.characters);
        m_host.key(event);
        m_clock.settle();
    }
    return {};
}

} // namespace brimshade::desktop
