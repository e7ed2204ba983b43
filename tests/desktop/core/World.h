#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "desktop/core/Inspection.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/MenuHost.h"
#include "desktop/core/Permission.h"
#include "desktop/core/WindowStack.h"
#include "desktop/time/VirtualDispatch.h"
#include "platform/Application.h"
#include "platform/EventServices.h"
#include "platform/HotkeyCenter.h"
#include "platform/Screens.h"
#include "platform/StatusBar.h"
#include "platform/WindowServer.h"
#include "support/Descriptions.h"
#include "support/FakeSystem.h"

namespace brimshade::desktop {

inline ApplicationDescription application(int pid, const std::vector<ExtraDescription> &extras)
{
    return brimshade::application(pid, u"Number%1"_s.arg(pid), extras);
}

// A clock of 132 points, pinned, and three items of 30: "a.one", "b.two", "b.three" of the applications 11 and 12.
DesktopDescription someDesktop();

// A desktop in virtual time and the shortest way to what tests ask of it.
class World : public testing::Test {
protected:
    explicit World(const DesktopDescription &description = someDesktop())
        : desktop({dispatch, symbols, nullptr, nullptr}, description), platform(desktop.platform())
    {
    }

    platform::Accessibility &accessibility() { return platform.accessibility; }
    platform::AXUIElement bar(int pid); // its extras menu bar; null when that cannot be read
    platform::AXUIElement item(int pid, std::size_t index);
    std::vector<platform::AXUIElement> children(const platform::AXUIElement &element);
    // What a read ended with: kAXErrorSuccess for a value.
    platform::AXError errorOf(const platform::AXUIElement &element, const QString &attribute);
    QString text(const platform::AXUIElement &element, const QString &attribute);
    QRectF axFrame(const platform::AXUIElement &element); // empty when it cannot be read

    QString barOrder(); // identifiers left to right, the own item by its autosave name
    QRectF barFrame(const QString &identifier);
    void settle() { dispatch.advance(0.1); } // lets the bar lay itself out

    void moveTo(QPointF to, std::uint64_t flags = 0) { desktop.input().pointerMoved(to, flags); }
    void press(QPointF at, MouseButton button = MouseButton::left, std::uint64_t flags = 0);
    void click(QPointF at, MouseButton button = MouseButton::left, std::uint64_t flags = 0);

    // Runs work on another thread, with as much virtual time as it takes up to the limit.
    void onWorker(const platform::Work &work, double limit = 10);

    VirtualDispatch dispatch;
    FakeSymbols symbols;
    Desktop desktop;
    platform::Platform platform;
};

} // namespace brimshade::desktop
