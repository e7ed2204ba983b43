#include "WorldCommands.h"
#include "desktop/core/Desktop.h"
#include "desktop/script/ScriptRunner.h"
#include "desktop/services/ScriptedLoginItem.h"
#include "desktop/stage/file/DesktopFile.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

using Result = ScriptRunner::Result;

Result launch(Desktop &desktop, Arguments &arguments)
{
    const auto application = parseApplication(arguments.value(u"application"_s), u"application"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!application)
        return std::unexpected(application.error());
    if (!desktop.launch({.description = *application}))
        return std::unexpected(u"application.pid: %1 is taken"_s.arg(application->pid));
    return {};
}

Result quit(Desktop &desktop, Arguments &arguments)
{
    const int pid = arguments.integer(u"pid"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!desktop.quit(pid))
        return std::unexpected(u"pid: no application %1 is running"_s.arg(pid));
    return {};
}

Result change(Desktop &desktop, Arguments &arguments)
{
    const int pid = arguments.integer(u"pid"_s);
    QJsonValue value = arguments.value(u"application"_s);
    if (QJsonObject object = value.toObject(); value.isObject() && !object.contains(u"pid"_s)) {
        object.insert(u"pid"_s, pid);
        value = object;
    }
    const auto application = parseApplication(value, u"application"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!application)
        return std::unexpected(application.error());
    if (application->pid != pid)
        return std::unexpected(u"application.pid: expected %1"_s.arg(pid));
    if (!desktop.change(pid, {.description = *application}))
        return std::unexpected(u"pid: no application %1 is running"_s.arg(pid));
    return {};
}

Result screens(Desktop &desktop, Arguments &arguments)
{
    const auto screens = parseScreens(arguments.value(u"screens"_s), u"screens"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!screens)
        return std::unexpected(screens.error());
    desktop.setScreens(*screens);
    return {};
}

Result trust(Desktop &desktop, Arguments &arguments)
{
    const bool granted = arguments.boolean(u"granted"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    desktop.setTrusted(granted);
    return {};
}

Result menuBar(Desktop &desktop, Arguments &arguments)
{
    const bool showing = arguments.boolean(u"showing"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    desktop.setMenuBarShowing(showing);
    return {};
}

Result moves(Desktop &desktop, Arguments &arguments)
{
    const bool accepted = arguments.boolean(u"accepted"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    desktop.setMovesAccepted(accepted);
    return {};
}

Result loginItem(Desktop &desktop, Arguments &arguments)
{
    const int status = arguments.integer(u"status"_s);
    const bool fails = arguments.has(u"failure"_s) && !arguments.value(u"failure"_s).isNull();
    const QString failure = fails ? arguments.text(u"failure"_s) : QString();
    if (status < 0 || status > 3)
        arguments.fail(u"status"_s, u"0 to 3"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    ScriptedLoginItem *item = desktop.scriptedLoginItem();
    if (!item)
        return std::unexpected(u"the session's own login item is in use"_s);
    item->answer(static_cast<platform::LoginItemStatus>(status), fails ? std::optional(failure) : std::nullopt);
    return {};
}

} // namespace

void addWorldCommands(ScriptRunner &runner, Desktop &desktop)
{
    using Handler = Result (*)(Desktop &, Arguments &);
    const std::pair<QString, Handler> handlers[] = {
        {u"launch"_s, launch}, {u"quit"_s, quit},       {u"change"_s, change}, {u"screens"_s, screens},
        {u"trust"_s, trust},   {u"menuBar"_s, menuBar}, {u"moves"_s, moves},   {u"loginItem"_s, loginItem},
    };
    for (const auto &[name, handler] : handlers)
        runner.add(name, [handler, &desktop](Arguments &arguments) { return handler(desktop, arguments); });
}

} // namespace brimshade::desktop
