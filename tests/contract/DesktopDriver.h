#pragma once
#include "Driver.h"
#include "support/TestDesktop.h"

#include <map>

namespace brimshade::contract {

// Our own desktop, in virtual time.
class DesktopDriver : public Driver {
public:
    platform::Platform platform() override { return m_on.desktop.platform(); }

    void runDue() override { m_on.dispatch.runDue(); }
    void advance(double seconds) override { m_on.dispatch.advance(seconds); }
    void settleMenuBar() override { advance(0.1); }

    void movePointer(QPointF at) override { m_on.moveTo(at); }
    void click(QPointF at, bool right) override;
    void drag(QPointF from, QPointF to) override { m_on.drag(from, to); }
    void key(std::uint16_t code, std::uint64_t modifierFlags) override { m_on.key(code, {}, modifierFlags); }
    QStringList openMenu() override { return m_on.desktop.menus().titles(); }
    QPointF menuCorner() override { return m_on.desktop.menus().anchor().topLeft(); }
    void choose(const QString &title) override { m_on.desktop.menus().choose(title); }
    void dismissMenu() override { m_on.desktop.menus().dismiss(); }

    int launch(const std::vector<ItemOfAnother> &items) override;
    void quit(int pid) override { m_on.desktop.quit(pid); }
    void hang(int pid) override;
    void setTrusted(bool trusted) override { m_on.desktop.setTrusted(trusted); }
    void changeScreens() override;
    QStringList told() override { return m_on.desktop.inspection().takeMessages(); }

    explicit DesktopDriver(const desktop::DesktopDescription &description) : m_on(description) { }

protected:
    desktop::Desktop &desktop() { return m_on.desktop; }

private:
    TestDesktop m_on;
    std::map<int, desktop::ApplicationDescription> m_launched;
    int m_latestPid = 100;
};

} // namespace brimshade::contract
