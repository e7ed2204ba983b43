#pragma once
#include "Descriptions.h"
#include "FakeSystem.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "desktop/core/Inspection.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/MenuHost.h"
#include "desktop/core/Permission.h"
#include "desktop/core/WindowStack.h"
#include "desktop/time/VirtualDispatch.h"

namespace brimshade {

// A desktop in virtual time and the hands of the person who uses it. Points have their origin at the top left.
class TestDesktop {
public:
    explicit TestDesktop(const desktop::DesktopDescription &description)
        : desktop({dispatch, symbols, nullptr, nullptr}, description), platform(desktop.platform())
    {
    }

    void moveTo(QPointF to, std::uint64_t flags = 0) { desktop.input().pointerMoved(to, flags); }
    void press(QPointF at, desktop::MouseButton button = desktop::MouseButton::left, std::uint64_t flags = 0)
    {
        moveTo(at, flags);
        desktop.input().pressed(button, flags);
    }
    void click(QPointF at, desktop::MouseButton button = desktop::MouseButton::left)
    {
        press(at, button);
        desktop.input().released(button, 0);
    }
    void drag(QPointF from, QPointF to, std::uint64_t flags = 0)
    {
        press(from, desktop::MouseButton::left, flags);
        moveTo(to, flags);
        desktop.input().released(desktop::MouseButton::left, flags);
    }
    void key(std::uint16_t code, const QString &characters, std::uint64_t flags)
    {
        desktop.input().keyDown({platform::keyDown, flags, code, characters});
    }

    desktop::VirtualDispatch dispatch;
    FakeSymbols symbols;
    desktop::Desktop desktop;
    platform::Platform platform;
};

} // namespace brimshade
