#include "Driver.h"
#include "support/TestDesktop.h"

using namespace brimshade::desktop;
using namespace brimshade::platform;

namespace brimshade::contract {

class DesktopDriver : public Driver {
public:
    Platform platform() override { return m_desktop.platform(); }

    void runDue() override { m_on.dispatch.runDue(); }
    void advance(double seconds) override { m_on.dispatch.advance(seconds); }
    void settleMenuBar() override { m_on.dispatch.advance(0.1); }

    void movePointer(QPointF at) override { m_on.moveTo(at); }
    void click(QPointF at, bool right) override { m_on.click(at, right ? MouseButton::right : MouseButton::left); }
    void drag(QPointF from, QPointF to) override { m_on.drag(from, to); }
    void key(std::uint16_t code, std::uint64_t modifierFlags) override { m_on.key(code, {}, modifierFlags); }
    QStringList openMenu() override { return m_desktop.menus().titles(); }
    void choose(const QString &title) override { m_desktop.menus().choose(title); }
    void dismissMenu() override { m_desktop.menus().dismiss(); }

    int launch(const std::vector<ItemOfAnother> &items) override
    {
        ApplicationDescription application = brimshade::application(++m_latestPid, u"Another"_s, {});
        for (const ItemOfAnother &item : items) {
            application.extras->push_back(extra(item.identifier, 30, item.menu));
            application.extras->back().actions = item.actions;
        }
        m_launched[application.pid] = application;
        m_desktop.launch({.description = application});
        return application.pid;
    }
    void quit(int pid) override { m_desktop.quit(pid); }
    void hang(int pid) override
    {
        m_launched[pid].hangs = true;
        m_desktop.change(pid, {.description = m_launched[pid]});
    }
    void setTrusted(bool trusted) override { m_desktop.setTrusted(trusted); }
    void changeScreens() override { m_desktop.setScreens({plainScreen({0, 0, 1920, 1080})}); }

private:
    TestDesktop m_on{notchedDesktop({})};
    Desktop &m_desktop = m_on.desktop;
    std::map<int, ApplicationDescription> m_launched;
    int m_latestPid = 100;
};

std::unique_ptr<Driver> makeDesktopDriver()
{
    return std::make_unique<DesktopDriver>();
}

} // namespace brimshade::contract
