#pragma once
#include "FakeProgram.h"
#include "desktop/tray/TrayHost.h"
#include "support/TestDesktop.h"

namespace brimshade::desktop::tray {

// A desktop that hosts the items of a bus of its own.
class TrayHostContext : public BusTest {
protected:
    explicit TrayHostContext(const DesktopDescription &description = notchedDesktop({}));

    void waitForWatcher();
    // Starts a program on a connection of that name, with an item and a menu of two entries.
    std::unique_ptr<FakeProgram> start(const QString &name, const QString &title);
    void end(std::unique_ptr<FakeProgram> program, const QString &name);

    // The titles of the tray's items, in order of arrival.
    QStringList titles();
    void waitForTitles(const QStringList &wanted, std::source_location where = std::source_location::current());
    int hostedPid(); // the first item's; 0 without any
    void press(int index); // through Accessibility
    void click(const QString &titleOrIdentifier, MouseButton button = MouseButton::left);
    bool isMenuOpen() { return m_desktop.menus().openMenu(); }

    FakeSymbols m_symbols;
    Desktop m_desktop;
    TrayHost m_host;
};

} // namespace brimshade::desktop::tray
