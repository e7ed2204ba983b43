#include "World.h"
#include "support/Descriptions.h"

namespace brimshade::soak {

using namespace Qt::StringLiterals;
using desktop::ApplicationDescription;

namespace {

constexpr int kRunning = 8;
constexpr int kNames = 12;
constexpr int kFirstPid = 1000;

std::vector<desktop::ScreenDescription> arrangement(int number)
{
    auto notched = notchedScreen();
    switch (number % 4) {
    case 0:
        return {notched};
    case 1:
        return {notched, plainScreen({1512, 0, 1920, 1080})};
    case 2:
        notched.frame.moveLeft(1920);
        return {plainScreen({0, 0, 1920, 1080}), notched};
    default:
        return {plainScreen({0, 0, 1920, 1080})};
    }
}

} // namespace

desktop::DesktopDescription World::description()
{
    auto agent = systemAgent({extra(u"com.example.menuextra.clock"_s, 132), extra(u"com.example.menuextra.wifi"_s)});
    std::vector<ApplicationDescription> applications{agent};
    for (int i = 0; i < kHanging; ++i)
        applications.push_back(
            hung(brimshade::application(500 + i, u"Hung%1"_s.arg(i), {extra(u"hung%1"_s.arg(i), 12)})));
    for (int i = 0; i < kRunning; ++i) {
        m_running.push_back(next());
        applications.push_back(m_running.back());
    }
    auto description = notchedDesktop(applications);
    description.screens = arrangement(0);
    description.defaults = {{u"onboardingDone"_s, true}, {u"dividerEnabled"_s, true}, {u"hoverToOpen"_s, true}};
    return description;
}

ApplicationDescription World::next()
{
    const int name = m_launched % kNames;
    auto application = brimshade::application(
        kFirstPid + m_launched++, u"Program%1"_s.arg(QChar(u'A' + name)),
        {extra(u"main"_s, 30, {u"About"_s, u"-"_s, u"Quit"_s}), extra(u"more"_s, 24, {u"About"_s})});
    application.icon = QColor::fromHsv(name * 22, 200, 220).name();
    application.latency = name % 3 * 0.001;
    return application;
}

void World::replaceAnApplication(desktop::Desktop &desktop)
{
    desktop.quit(m_running.front().pid);
    m_running.pop_front();
    m_running.push_back(next());
    desktop.launch({.description = m_running.back()});
}

void World::renameAnItem(desktop::Desktop &desktop)
{
    m_running.back().extras->front().title = u"%1 unread"_s.arg(m_renamed++ % 100);
    change(desktop);
}

void World::setNewestHangs(desktop::Desktop &desktop, bool hangs)
{
    m_running.back().hangs = hangs;
    change(desktop);
}

void World::change(desktop::Desktop &desktop)
{
    desktop.change(m_running.back().pid, {.description = m_running.back()});
}

void World::changeScreens(desktop::Desktop &desktop)
{
    desktop.setScreens(arrangement(++m_arrangement));
}

} // namespace brimshade::soak
