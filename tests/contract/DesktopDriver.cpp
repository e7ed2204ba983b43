#include "DesktopDriver.h"

using namespace brimshade::desktop;

namespace brimshade::contract {

void DesktopDriver::click(QPointF at, bool right)
{
    m_on.click(at, right ? MouseButton::right : MouseButton::left);
}

int DesktopDriver::launch(const std::vector<ItemOfAnother> &items)
{
    ApplicationDescription application = brimshade::application(++m_latestPid, u"Another"_s, {});
    for (const ItemOfAnother &item : items) {
        application.extras->push_back(extra(item.identifier, 30, item.menu));
        application.extras->back().actions = item.actions;
    }
    m_launched[application.pid] = application;
    m_on.desktop.launch({.description = application});
    return application.pid;
}

void DesktopDriver::hang(int pid)
{
    m_launched[pid].hangs = true;
    m_on.desktop.change(pid, {.description = m_launched[pid]});
}

void DesktopDriver::changeScreens()
{
    m_on.desktop.setScreens({plainScreen({0, 0, 1920, 1080})});
}

} // namespace brimshade::contract
