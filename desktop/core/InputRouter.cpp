#include "InputRouter.h"
#include "CommandDrag.h"
#include "MenuBar.h"
#include "MenuHost.h"
#include "OwnStatusItem.h"
#include "Permission.h"
#include "PointerTracking.h"
#include "ProgramApplication.h"
#include "WindowStack.h"
#include "desktop/services/HotkeyRegistry.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

Event mouseEvent(MouseButton button, bool isDown, std::uint64_t modifierFlags)
{
    const bool isLeft = button == MouseButton::left;
    Event event;
    event.type = isDown ? (isLeft ? leftMouseDown : rightMouseDown) : (isLeft ? leftMouseUp : rightMouseUp);
    event.modifierFlags = modifierFlags;
    return event;
}

} // namespace

// A button that is held. Everything until its release belongs to the target of the press.
struct InputRouter::Press {
    Target target = Target::elsewhere;
    BarEntryPointer entry; // of the program's status item, where that was pressed
};

struct InputRouter::Private : Parts {
    explicit Private(const Parts &parts) : Parts(parts), drag(parts.menuBar), tracking(parts.state, parts.windows) { }

    const EventMonitors &monitors() const { return application.monitors(); }
    std::optional<Event> passLocal(const Event &event) const
    {
        const ProgramApplication::Handling handling(application, event.type);
        return monitors().passLocal(event);
    }

    CommandDrag drag;
    PointerTracking tracking;
    std::array<std::optional<Press>, 3> held; // by MouseButton
    QPointF at; // of the event being handled; if a thread posted it, the pointer may have moved on since
};

InputRouter::InputRouter(const Parts &parts) : m_d(std::make_unique<Private>(parts)) { }

InputRouter::~InputRouter() = default;

QPointF InputRouter::pointer() const
{
    return m_d->state.pointer();
}

Target InputRouter::targetAt(QPointF point) const
{
    if (m_d->menus.openMenu())
        return Target::menu;
    if (m_d->permission.takesPoint(point))
        return Target::systemWindow;
    if (m_d->windows.windowAt(point))
        return Target::window;
    const bool isOnBar = m_d->menuBar.isShowing() && containsPoint(m_d->menuBar.frame(), point);
    return isOnBar ? Target::menuBar : Target::elsewhere;
}

Target InputRouter::pointerMoved(QPointF to, std::uint64_t)
{
    m_d->state.write([to](DisplayState &state) { state.pointer = to; });
    return moved(to);
}

Target InputRouter::moved(QPointF to)
{
    m_d->at = to;
    for (const auto &press : m_d->held) {
        if (!press)
            continue;
        if (m_d->drag.isActive())
            m_d->drag.dragged(to);
        return press->target;
    }
    m_d->tracking.pointerMoved(to);
    const Target target = targetAt(to);
    Q_EMIT pointerAt(to, target);
    return target;
}

Target InputRouter::pressed(MouseButton button, std::uint64_t modifierFlags)
{
    Q_EMIT acted();
    m_d->at = pointer();
    return press(button, modifierFlags);
}

Target InputRouter::released(MouseButton button, std::uint64_t modifierFlags)
{
    m_d->at = pointer();
    return release(button, modifierFlags);
}

Target InputRouter::press(MouseButton button, std::uint64_t modifierFlags)
{
    auto &held = m_d->held[static_cast<std::size_t>(button)];
    held = Press{};
    const Target target = takePress(button, modifierFlags);
    if (held)
        held->target = target;
    return target;
}

Target InputRouter::takePress(MouseButton button, std::uint64_t modifierFlags)
{
    const Event event = mouseEvent(button, true, modifierFlags);
    const Target target = targetAt(m_d->at);
    if (target == Target::menu)
        return target;
    if (button == MouseButton::middle)
        return pressMiddle(target);
    if (button == MouseButton::left && m_d->drag.begin(m_d->at, modifierFlags)) {
        if (!m_d->statusBar.itemOf(m_d->drag.entry()))
            m_d->monitors().tellGlobal(event);
        return Target::menuBar;
    }
    if (target == Target::window)
        return pressInWindow(event);
    if (target == Target::menuBar)
        return pressInMenuBar(button, event);
    m_d->windows.deactivate();
    m_d->monitors().tellGlobal(event);
    return target;
}

Target InputRouter::pressInWindow(const Event &event)
{
    DesktopWindow *window = m_d->windows.windowAt(m_d->at);
    if (!m_d->passLocal(event))
        return Target::elsewhere;
    window->orderFrontRegardless();
    if (!(window->attributes().styleMask & kStyleNonactivatingPanel))
        m_d->windows.activate();
    m_d->windows.makeKey(window);
    return Target::window;
}

// The bar belongs to no window: a press there leaves the keys where they are.
Target InputRouter::pressInMenuBar(MouseButton button, const Event &event)
{
    const auto entry = m_d->menuBar.drawnEntryAt(m_d->at);
    if (OwnStatusItem *own = m_d->statusBar.itemOf(entry)) {
        m_d->held[static_cast<std::size_t>(button)]->entry = entry;
        if (m_d->passLocal(event))
            own->pressed(event.type);
        return Target::menuBar;
    }
    m_d->monitors().tellGlobal(event);
    const bool wantsMenu = button == MouseButton::right || (event.modifierFlags & kControlFlag);
    if (entry && entry->handler)
        entry->handler(wantsMenu ? ItemGesture::menu : ItemGesture::click);
    return Target::menuBar;
}

// The program has no use for other buttons: only items of the bar and views do.
Target InputRouter::pressMiddle(Target target)
{
    const auto entry = target == Target::menuBar ? m_d->menuBar.drawnEntryAt(m_d->at) : nullptr;
    if (entry && entry->handler)
        entry->handler(ItemGesture::secondary);
    return target;
}

Target InputRouter::scrolled(QPointF at, QPoint by)
{
    const Target target = targetAt(at);
    const auto entry = target == Target::menuBar ? m_d->menuBar.drawnEntryAt(at) : nullptr;
    if (entry && entry->scroller)
        entry->scroller(by);
    return target;
}

Target InputRouter::release(MouseButton button, std::uint64_t modifierFlags)
{
    const auto press = std::exchange(m_d->held[static_cast<std::size_t>(button)], std::nullopt);
    const Event event = mouseEvent(button, false, modifierFlags);
    if (!press)
        return targetAt(m_d->at);
    if (button == MouseButton::middle)
        return press->target;
    if (button == MouseButton::left && m_d->drag.isActive()) {
        OwnStatusItem *own = m_d->statusBar.itemOf(m_d->drag.entry());
        if (m_d->drag.end(m_d->at, modifierFlags) && own)
            own->storePlace();
    } else if (OwnStatusItem *own = m_d->statusBar.itemOf(press->entry)) {
        const bool isInside = m_d->menuBar.drawnEntryAt(m_d->at) == press->entry;
        own->released(event.type, m_d->passLocal(event) && isInside);
    } else if (press->target == Target::window) {
        return m_d->passLocal(event) ? Target::window : Target::elsewhere;
    } else if (press->target != Target::menu) {
        m_d->monitors().tellGlobal(event);
    }
    return press->target;
}

bool InputRouter::takeHotkey(const Event &event)
{
    if (!event.isARepeat)
        Q_EMIT acted();
    const HotkeyCombination pressed{event.keyCode, carbonModifiers(event.modifierFlags)};
    return event.isARepeat ? m_d->hotkeys.takes(pressed) : m_d->hotkeys.press(pressed.keyCode, pressed.modifiers);
}

std::optional<Event> InputRouter::keyDown(const Event &event)
{
    if (takeHotkey(event) || m_d->menus.openMenu())
        return std::nullopt;
    if (m_d->windows.keyWindow())
        return m_d->passLocal(event);
    if (m_d->permission.isTrusted()) // without it nobody can listen to another application's keys
        m_d->monitors().tellGlobal(event);
    return std::nullopt;
}

void InputRouter::synthetic(const CGMouseEvent &event)
{
    m_d->at = event.location;
    if (event.type == kCGEventLeftMouseDown) {
        press(MouseButton::left, event.flags);
        Q_EMIT syntheticHeld(true);
    } else if (event.type == kCGEventLeftMouseUp) {
        release(MouseButton::left, event.flags);
        Q_EMIT syntheticHeld(false);
    } else {
        moved(event.location);
    }
    Q_EMIT pointerWarped();
}

} // namespace brimshade::desktop
