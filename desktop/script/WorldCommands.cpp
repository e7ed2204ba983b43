#include "ScriptRunner.h"
#include "desktop/core/Desktop.h"
#include "desktop/file/DesktopFile.h"
#include "desktop/services/ScriptedLoginItem.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

ScriptRunner::Result ScriptRunner::launch(Arguments &arguments)
{
    const auto application = parseApplication(arguments.value(u"application"_s), u"application"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!application)
        return std::unexpected(application.error());
    if (!m_desktop.launch({.description = *application}))
        return std::unexpected(u"application.pid: %1 is taken"_s.arg(application->pid));
    return {};
}

ScriptRunner::Result ScriptRunner::quit(Arguments &arguments)
{
    const int pid = arguments.integer(u"pid"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!m_desktop.quit(pid))
        return std::unexpected(u"pid: no application %1 is running"_s.arg(pid));
    return {};
}

ScriptRunner::Result ScriptRunner::change(Arguments &arguments)
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
    if (!m_desktop.change(pid, {.description = *application}))
        return std::unexpected(u"pid: no application %1 is running"_s.arg(pid));
    return {};
}

ScriptRunner::Result ScriptRunner::screens(Arguments &arguments)
{
    const auto screens = parseScreens(arguments.value(u"screens"_s), u"screens"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!screens)
        return std::unexpected(screens.error());
    m_desktop.setScreens(*screens);
    return {};
}

ScriptRunner::Result ScriptRunner::trust(Arguments &arguments)
{
    const bool granted = arguments.boolean(u"granted"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_desktop.setTrusted(granted);
    return {};
}

ScriptRunner::Result ScriptRunner::menuBar(Arguments &arguments)
{
    const bool showing = arguments.boolean(u"showing"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_desktop.setMenuBarShowing(showing);
    return {};
}

ScriptRunner::Result ScriptRunner::moves(Arguments &arguments)
{
    const bool accepted = arguments.boolean(u"accepted"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_desktop.setMovesAccepted(accepted);
    return {};
}

ScriptRunner::Result ScriptRunner::loginItem(Arguments &arguments)
{
    const int status = arguments.integer(u"status"_s);
    const bool fails = arguments.has(u"failure"_s) && !arguments.value(u"failure"_s).isNull();
    const QString failure = fails ? arguments.text(u"failure"_s) : QString();
    if (status < 0 || status > 3)
        arguments.fail(u"status"_s, u"0 to 3"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    ScriptedLoginItem *item = m_desktop.scriptedLoginItem();
    if (!item)
        return std::unexpected(u"the session's own login item is in use"_s);
    item->answer(static_cast<platform::LoginItemStatus>(status), fails ? std::optional(failure) : std::nullopt);
    return {};
}

} // namespace brimshade::desktop
