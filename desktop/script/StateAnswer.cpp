#include "StateAnswer.h"
#include "Json.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/InputRouter.h"
#include "desktop/core/Inspection.h"
#include "desktop/core/MenuBar.h"
#include "desktop/core/MenuHost.h"
#include "desktop/core/WindowStack.h"
#include "desktop/services/HotkeyRegistry.h"
#include "desktop/services/LogWriter.h"
#include "desktop/services/MemoryDefaults.h"
#include "desktop/services/ScriptedLoginItem.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

// In the way a desktop file describes them.
QJsonArray screensAnswer(const platform::Screens &screens)
{
    QJsonArray answer;
    for (const platform::Screen &screen : screens.screens()) {
        QJsonValue notch;
        if (screen.auxiliaryTopLeftArea && screen.auxiliaryTopRightArea) {
            notch = QJsonArray{platform::maxX(*screen.auxiliaryTopLeftArea) - screen.frame.x(),
                               platform::minX(*screen.auxiliaryTopRightArea) - screen.frame.x()};
        }
        answer.append(QJsonObject{
            {u"name"_s, screen.localizedName}, {u"frame"_s, json::rect(screen.frame)}, {u"notch"_s, notch}});
    }
    return answer;
}

QJsonArray menuBarAnswer(const MenuBar &bar)
{
    QJsonArray items;
    for (const BarItem &item : bar.items()) {
        items.append(QJsonObject{{u"pid"_s, item.pid},
                                 {u"identifier"_s, json::textOrNull(item.identifier)},
                                 {u"title"_s, json::textOrNull(item.title)},
                                 {u"frame"_s, json::rect(item.frame)},
                                 {u"drawn"_s, item.drawn}});
    }
    return items;
}

QJsonValue statusItemAnswer(const MenuBar &bar)
{
    for (const BarItem &item : bar.items()) {
        if (item.isOwn)
            return QJsonObject{
                {u"length"_s, bar.ownItemLength()}, {u"frame"_s, json::rect(item.frame)}, {u"drawn"_s, item.drawn}};
    }
    return {};
}

// A window that was made in advance has no place yet: to a script it does not exist.
QJsonArray windowsAnswer(const WindowStack &stack)
{
    QJsonArray windows;
    for (const DesktopWindow *window : stack.windows()) {
        if (window->frame().isEmpty())
            continue;
        windows.append(QJsonObject{{u"name"_s, window->attributes().name},
                                   {u"title"_s, window->attributes().title},
                                   {u"frame"_s, json::rect(window->frame())},
                                   {u"visible"_s, window->isVisible()},
                                   {u"isKey"_s, window->isKeyWindow()}});
    }
    return windows;
}

// Before its first opening there is no panel, or one without a frame; both are reported with an empty frame.
QJsonObject panelAnswer(const WindowStack &stack)
{
    const DesktopWindow *panel = stack.named(u"panel"_s);
    return {{u"frame"_s, json::rect(panel ? panel->frame() : QRectF())},
            {u"onScreen"_s, panel && panel->isVisible()},
            {u"isKey"_s, panel && panel->isKeyWindow()}};
}

QJsonValue stripAnswer(const WindowStack &stack)
{
    const DesktopWindow *strip = stack.named(u"strip"_s);
    return strip && strip->isVisible() ? QJsonValue(json::rect(strip->frame())) : QJsonValue();
}

QJsonArray eventsAnswer(const std::vector<SyntheticEvent> &events)
{
    QJsonArray answer;
    for (const SyntheticEvent &each : events) {
        answer.append(QJsonObject{{u"type"_s, each.event.type},
                                  {u"at"_s, json::point(each.event.location)},
                                  {u"flags"_s, static_cast<qint64>(each.event.flags)},
                                  {u"clickState"_s, static_cast<qint64>(each.event.clickState)},
                                  {u"time"_s, each.time}});
    }
    return answer;
}

QJsonArray actionsAnswer(const std::vector<PerformedAction> &actions)
{
    QJsonArray answer;
    for (const PerformedAction &each : actions) {
        answer.append(QJsonObject{{u"pid"_s, each.pid},
                                  {u"identifier"_s, json::textOrNull(each.identifier)},
                                  {u"action"_s, each.action},
                                  {u"result"_s, each.result}});
    }
    return answer;
}

QJsonArray logAnswer(const std::vector<LogEntry> &entries)
{
    QJsonArray answer;
    for (const LogEntry &each : entries) {
        const QString level = each.level == platform::LogLevel::error ? u"error"_s : u"info"_s;
        answer.append(QJsonObject{{u"level"_s, level}, {u"text"_s, each.text}});
    }
    return answer;
}

QJsonObject hotkeyAnswer(const HotkeyRegistry::Registered &hotkey)
{
    return {{u"keyCode"_s, static_cast<qint64>(hotkey.combination.keyCode)},
            {u"modifiers"_s, static_cast<qint64>(hotkey.combination.modifiers)}};
}

// The panel's hotkey, which is the program's first.
QJsonValue panelHotkeyAnswer(const HotkeyRegistry &hotkeys)
{
    const auto registered = hotkeys.registered();
    const bool isThere = !registered.empty() && registered.front().id.number == 1;
    return isThere ? QJsonValue(hotkeyAnswer(registered.front())) : QJsonValue();
}

QJsonArray hotkeysAnswer(const HotkeyRegistry &hotkeys)
{
    QJsonArray answer;
    for (const HotkeyRegistry::Registered &each : hotkeys.registered()) {
        QJsonObject hotkey = hotkeyAnswer(each);
        hotkey.insert(u"purpose"_s, each.purpose);
        answer.append(hotkey);
    }
    return answer;
}

QJsonValue loginItemAnswer(const ScriptedLoginItem *item)
{
    if (!item)
        return {};
    return QJsonObject{{u"status"_s, static_cast<int>(item->status())},
                       {u"failure"_s, item->failure() ? QJsonValue(*item->failure()) : QJsonValue()}};
}

} // namespace

QJsonObject stateAnswer(Desktop &desktop)
{
    MenuBar &bar = desktop.menuBar();
    WindowStack &windows = desktop.windows();
    Inspection &inspection = desktop.inspection();
    const bool menuOpen = desktop.menus().openMenu();
    return {{u"screens"_s, screensAnswer(desktop.platform().screens)},
            {u"panel"_s, panelAnswer(windows)},
            {u"strip"_s, stripAnswer(windows)},
            {u"statusItem"_s, statusItemAnswer(bar)},
            {u"hotkey"_s, panelHotkeyAnswer(desktop.hotkeys())},
            {u"hotkeys"_s, hotkeysAnswer(desktop.hotkeys())},
            {u"menuBar"_s, menuBarAnswer(bar)},
            {u"windows"_s, windowsAnswer(windows)},
            {u"menu"_s, menuOpen ? QJsonValue(QJsonArray::fromStringList(desktop.menus().titles())) : QJsonValue()},
            {u"defaults"_s, QJsonObject::fromVariantMap(desktop.defaults().all())},
            {u"loginItem"_s, loginItemAnswer(desktop.scriptedLoginItem())},
            {u"pointer"_s, json::point(desktop.input().pointer())},
            {u"openedURLs"_s, QJsonArray::fromStringList(inspection.takeOpenedURLs())},
            {u"messages"_s, QJsonArray::fromStringList(inspection.takeMessages())},
            {u"prompts"_s, inspection.promptCount()},
            {u"events"_s, eventsAnswer(inspection.takeEvents())},
            {u"actions"_s, actionsAnswer(inspection.takeActions())},
            {u"requests"_s, static_cast<qint64>(inspection.requestCount())},
            {u"log"_s, logAnswer(desktop.log().take())}};
}

} // namespace brimshade::desktop
