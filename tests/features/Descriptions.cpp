#include "Descriptions.h"

using namespace Qt::StringLiterals;

namespace brimshade::features {

namespace {

desktop::ExtraDescription extra(const QString &identifier, double width)
{
    desktop::ExtraDescription extra;
    extra.role = u"AXMenuBarItem"_s;
    extra.identifier = identifier;
    extra.width = width;
    extra.actions = {u"AXPress"_s};
    extra.menu = {u"About"_s};
    return extra;
}

} // namespace

desktop::ScreenDescription notchedScreen(double upper)
{
    return {.name = u"Built-in Display"_s,
            .frame = {0, 0, 1512, 982},
            .menuBarHeight = 37,
            .safeAreaTop = 37,
            .notch = std::pair(663.0, upper)};
}

desktop::ScreenDescription plainScreen(const QString &name, QRectF frame)
{
    return {.name = name, .frame = frame, .menuBarHeight = 24, .safeAreaTop = 0, .notch = {}};
}

desktop::ApplicationDescription application(int pid, const QString &name, double width)
{
    desktop::ApplicationDescription application;
    application.pid = pid;
    application.name = name;
    application.bundleIdentifier = u"app."_s + name.toLower();
    application.bundlePath = u"/Applications/%1.app"_s.arg(name);
    application.extras = {{extra(name.toLower() + u".main"_s, width)}};
    return application;
}

desktop::ApplicationDescription systemAgent()
{
    desktop::ApplicationDescription agent;
    agent.pid = 401;
    agent.name = u"Control Center"_s;
    agent.bundleIdentifier = u"com.apple.MenuBarAgent"_s;
    agent.bundlePath = u"/System/Library/CoreServices/MenuBarAgent.app"_s;
    agent.extras = {
        {extra(u"com.example.menuextra.clock"_s, 132), extra(u"com.example.menuextra.controlcenter"_s, 40)}};
    agent.extras->at(0).description = u"Clock"_s;
    agent.extras->at(1).description = u"Control Center"_s;
    return agent;
}

desktop::ApplicationDescription withButton(desktop::ApplicationDescription agent, const QRectF &frame)
{
    desktop::ExtraDescription button = extra(u"com.example.button"_s, frame.width());
    button.role = u"AXButton"_s;
    button.frameKind = desktop::ExtraDescription::Frame::fixed;
    button.frame = frame;
    agent.extras->push_back(button);
    return agent;
}

desktop::DesktopDescription notchedDesktop()
{
    desktop::DesktopDescription desktop;
    desktop.screens = {notchedScreen()};
    desktop.applications = {systemAgent(), application(811, u"Relay"_s), application(812, u"Vault"_s),
                            application(813, u"Quill"_s)};
    desktop.pointer = QPointF(100, 800);
    desktop.defaults = {{u"onboardingDone"_s, true}};
    return desktop;
}

desktop::DesktopDescription dividedDesktop()
{
    desktop::DesktopDescription desktop = notchedDesktop();
    desktop.defaults.insert(u"dividerEnabled"_s, true);
    return desktop;
}

} // namespace brimshade::features
