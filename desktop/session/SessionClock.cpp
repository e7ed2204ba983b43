#include "SessionClock.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuHost.h"

#include <QDate>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr int kPid = 1; // no program with tray items has it
constexpr double kWidth = 140; // room for the longest of the clock's forms

void openDate(MenuHost &menus, const QRectF &frame)
{
    platform::MenuItem date;
    date.title = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
    date.isEnabled = false;
    menus.open(makeMenuSource({.items = {date}}), frame);
}

} // namespace

void launchClock(Desktop &desktop)
{
    const QString identifier = u"org.brimshade.menuextra.clock"_s;
    ExtraDescription clock;
    clock.role = u"AXMenuBarItem"_s;
    clock.identifier = identifier;
    clock.description = u"Clock"_s;
    clock.width = kWidth;
    clock.actions = {u"AXPress"_s};
    ApplicationDescription agent;
    agent.pid = kPid;
    agent.name = u"Menu Bar"_s;
    agent.bundleIdentifier = u"com.apple.MenuBarAgent"_s; // this application's clock is pinned
    agent.bundlePath = u"/System/Library/CoreServices/MenuBarAgent.app"_s;
    agent.extras = {{clock}};
    ItemSpec item;
    item.handler = [&desktop](ItemGesture, const QRectF &frame) { openDate(desktop.menus(), frame); };
    desktop.launch({.description = agent, .items = {{identifier, item}}});
}

} // namespace brimshade::desktop::session
