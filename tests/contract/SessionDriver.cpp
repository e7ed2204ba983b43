// Runs the suite in a real session: screens, windows and the hands that use them are the session's. Time is virtual
// here, too.
#include "DesktopDriver.h"
#include "desktop/session/SessionHost.h"
#include "desktop/session/SessionScreens.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <iostream>

using namespace brimshade::desktop;
using session::SessionHost;
using session::SessionScreens;
using session::ShellBackend;

namespace brimshade::contract {

namespace {

DesktopDescription described(const SessionScreens &screens)
{
    DesktopDescription description;
    description.screens = screens.descriptions();
    return description;
}

std::unique_ptr<ShellBackend> connected()
{
    auto shell = ShellBackend::create();
    if (!shell)
        throw std::runtime_error(shell.error().toStdString());
    return std::move(*shell);
}

// Created before the desktop, which they describe.
struct SessionParts {
    std::unique_ptr<ShellBackend> shell = connected();
    SessionScreens screens{session::ScreenChoice()};
};

class SessionDriver : private SessionParts, public DesktopDriver {
public:
    SessionDriver() : DesktopDriver(described(screens)) { settle(); }

    void runDue() override
    {
        settle();
        DesktopDriver::runDue();
    }

    void advance(double seconds) override
    {
        DesktopDriver::advance(seconds);
        settle();
    }

    void movePointer(QPointF at) override
    {
        m_host.movePointer(at, 0);
        settle();
    }

    void click(QPointF at, bool right) override
    {
        const auto button = right ? MouseButton::right : MouseButton::left;
        m_host.movePointer(at, 0);
        m_host.press(button, 0);
        m_host.release(button, 0);
        settle();
    }

    void drag(QPointF from, QPointF to) override
    {
        m_host.movePointer(from, 0);
        m_host.press(MouseButton::left, 0);
        m_host.movePointer(to, 0);
        m_host.release(MouseButton::left, 0);
        settle();
    }

    void key(std::uint16_t code, std::uint64_t modifierFlags) override
    {
        settle();
        m_host.key({platform::keyDown, modifierFlags, code, {}});
        settle();
    }

    void changeScreens() override
    {
        session::ScreenChoice choice;
        choice.notch.kind = session::NotchChoice::Kind::none;
        screens.choose(choice);
    }

private:
    void settle()
    {
        QCoreApplication::processEvents();
        m_host.settle();
    }

    SessionHost m_host{desktop(), screens, *shell};
};

} // namespace

std::unique_ptr<Driver> makeDriver()
{
    return std::make_unique<SessionDriver>();
}

} // namespace brimshade::contract

int main(int argc, char **argv)
{
    if (const auto prepared = ShellBackend::prepareEnvironment(); !prepared) {
        std::cerr << qUtf8Printable(prepared.error()) << std::endl;
        return 2;
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
    QGuiApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    ShellBackend::end(RUN_ALL_TESTS());
}
