#include "Descriptions.h"

namespace brimshade {

using desktop::ApplicationDescription;
using desktop::ExtraDescription;

ExtraDescription extra(const QString &identifier, double width, const QStringList &menu)
{
    ExtraDescription extra;
    extra.role = u"AXMenuBarItem"_s;
    extra.identifier = identifier;
    extra.width = width;
    extra.actions = {u"AXPress"_s};
    extra.menu = menu;
    return extra;
}

ExtraDescription extraAt(const QString &identifier, const QRectF &frame)
{
    ExtraDescription fixed = extra(identifier, frame.width());
    fixed.frameKind = ExtraDescription::Frame::fixed;
    fixed.frame = frame;
    return fixed;
}

ExtraDescription button(const QRectF &frame)
{
    ExtraDescription button = extraAt({}, frame);
    button.role = u"AXButton"_s;
    button.identifier.reset();
    return button;
}

ExtraDescription group(std::vector<ExtraDescription> children)
{
    ExtraDescription group;
    group.role = u"AXGroup"_s;
    group.children = std::move(children);
    return group;
}

ApplicationDescription application(int pid, const QString &name, std::vector<ExtraDescription> extras)
{
    ApplicationDescription application;
    application.pid = pid;
    application.name = name;
    application.bundleIdentifier = u"app.%1"_s.arg(name.toLower());
    application.bundlePath = u"/Applications/%1.app"_s.arg(name);
    application.extras = std::move(extras);
    return application;
}

ApplicationDescription systemAgent(std::vector<ExtraDescription> extras)
{
    ApplicationDescription agent = application(401, u"Control Center"_s, std::move(extras));
    agent.bundleIdentifier = u"com.apple.MenuBarAgent"_s;
    return agent;
}

ApplicationDescription hung(ApplicationDescription application)
{
    application.hangs = true;
    return application;
}

desktop::ScreenDescription notchedScreen(double upper)
{
    return {u"Built-in Display"_s, {0, 0, 1512, 982}, 37, 37, std::pair(663.0, upper)};
}

desktop::ScreenDescription plainScreen(const QRectF &frame, const QString &name)
{
    return {name, frame, 24, 0, {}};
}

desktop::DesktopDescription notchedDesktop(std::vector<ApplicationDescription> applications)
{
    desktop::DesktopDescription description;
    description.screens = {notchedScreen()};
    description.applications = std::move(applications);
    return description;
}

} // namespace brimshade
