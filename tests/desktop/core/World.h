#pragma once
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "desktop/core/Inspection.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/MenuHost.h"
#include "desktop/core/Permission.h"
#include "desktop/core/WindowStack.h"
#include "desktop/time/VirtualDispatch.h"
#include "platform/Accessibility.h"
#include "platform/Application.h"
#include "platform/EventServices.h"
#include "platform/HotkeyCenter.h"
#include "platform/NotificationCenter.h"
#include "platform/Screens.h"
#include "platform/StatusBar.h"
#include "platform/Symbol.h"
#include "platform/UserDefaults.h"
#include "platform/WindowServer.h"
#include "platform/Workspace.h"

#include <gtest/gtest.h>

namespace brimshade::desktop {

class NoSymbols : public platform::Symbols {
public:
    platform::Image symbolImage(const QString &, const QString &, const platform::SymbolConfiguration &) override
    {
        return {};
    }
};

ExtraDescription extra(const QString &identifier, double width = 30, const QStringList &menu = {});
ApplicationDescription application(int pid, const std::vector<ExtraDescription> &extras);
// 1512 × 982, bar 37, notch from 663 to 849.
ScreenDescription notchedScreen();
ScreenDescription plainScreen(const QRectF &frame); // bar 24
// A clock of 132 points, pinned, and three items of 30: "a.one", "b.two", "b.three" of the applications 11 and 12.
DesktopDescription someDesktop();

// A desktop in virtual time and the shortest way to what tests ask of it.
class World : public testing::Test {
protected:
    explicit World(const DesktopDescription &description = someDesktop());

    platform::Accessibility &accessibility() { return platform.accessibility; }
    platform::AXUIElement bar(int pid); // its extras menu bar; null when that cannot be read
    platform::AXUIElement item(int pid, std::size_t index);
    std::vector<platform::AXUIElement> children(const platform::AXUIElement &element);
    // What a read ended with: kAXErrorSuccess for a value.
    platform::AXError errorOf(const platform::AXUIElement &element, const QString &attribute);
    QString text(const platform::AXUIElement &element, const QString &attribute);
    QRectF axFrame(const platform::AXUIElement &element); // empty when it cannot be read

    QStringList barOrder(); // identifiers left to right, the own item by its autosave name
    QRectF barFrame(const QString &identifier);
    void settle(); // lets the bar lay itself out

    void moveTo(QPointF to, std::uint64_t flags = 0) { desktop.input().pointerMoved(to, flags); }
    void press(QPointF at, MouseButton button = MouseButton::left, std::uint64_t flags = 0);
    void click(QPointF at, MouseButton button = MouseButton::left, std::uint64_t flags = 0);
    std::optional<platform::Event> key(std::uint16_t code, std::uint64_t flags = 0);

    // Runs work on another thread, with as much virtual time as it takes up to the limit.
    void onWorker(const platform::Work &work, double limit = 10);

    VirtualDispatch dispatch;
    NoSymbols symbols;
    Desktop desktop;
    platform::Platform platform;
};

} // namespace brimshade::desktop
