#include "World.h"

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

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

ApplicationDescription application(int pid, const std::vector<ExtraDescription> &extras)
{
    ApplicationDescription application;
    application.pid = pid;
    application.name = u"Application %1"_s.arg(pid);
    application.bundleIdentifier = u"app.number%1"_s.arg(pid);
    application.bundlePath = u"/Applications/Number%1.app"_s.arg(pid);
    application.extras = extras;
    return application;
}

ScreenDescription notchedScreen()
{
    return {u"Built-in Display"_s, QRectF(0, 0, 1512, 982), 37, 37, std::pair(663., 849.)};
}

ScreenDescription plainScreen(const QRectF &frame)
{
    return {u"External"_s, frame, 24, 0, {}};
}

DesktopDescription someDesktop()
{
    DesktopDescription description;
    description.screens = {notchedScreen()};
    auto agent = application(10, {extra(u"com.example.clock"_s, 132)});
    agent.bundleIdentifier = u"com.apple.MenuBarAgent"_s;
    description.applications = {agent, application(11, {extra(u"a.one"_s, 30, {u"Open"_s, u"-"_s, u"Quit"_s})}),
                                application(12, {extra(u"b.two"_s), extra(u"b.three"_s)})};
    return description;
}

World::World(const DesktopDescription &description)
    : desktop({.dispatch = dispatch, .symbols = symbols, .defaults = nullptr, .loginItems = nullptr}, description),
      platform(desktop.platform())
{
}

AXUIElement World::bar(int pid)
{
    const auto value = accessibility().copyAttributeValue(accessibility().createApplication(pid), u"AXExtrasMenuBar"_s);
    return value ? std::get<AXUIElement>(*value) : nullptr;
}

std::vector<AXUIElement> World::children(const AXUIElement &element)
{
    const auto value = accessibility().copyAttributeValue(element, u"AXChildren"_s);
    return value ? std::get<std::vector<AXUIElement>>(*value) : std::vector<AXUIElement>();
}

AXUIElement World::item(int pid, std::size_t index)
{
    const auto items = children(bar(pid));
    return index < items.size() ? items[index] : nullptr;
}

AXError World::errorOf(const AXUIElement &element, const QString &attribute)
{
    const auto value = accessibility().copyAttributeValue(element, attribute);
    return value ? kAXErrorSuccess : value.error();
}

QString World::text(const AXUIElement &element, const QString &attribute)
{
    const auto value = accessibility().copyAttributeValue(element, attribute);
    return value ? std::get<QString>(*value) : QString();
}

QRectF World::axFrame(const AXUIElement &element)
{
    const auto position = accessibility().copyAttributeValue(element, u"AXPosition"_s);
    const auto size = accessibility().copyAttributeValue(element, u"AXSize"_s);
    return position && size ? QRectF(std::get<QPointF>(*position), std::get<QSizeF>(*size)) : QRectF();
}

QStringList World::barOrder()
{
    QStringList order;
    for (const BarItem &item : desktop.menuBar().items())
        order << item.identifier;
    return order;
}

QRectF World::barFrame(const QString &identifier)
{
    for (const BarItem &item : desktop.menuBar().items()) {
        if (item.identifier == identifier)
            return item.frame;
    }
    return {};
}

void World::settle()
{
    dispatch.advance(0.1);
}

void World::press(QPointF at, MouseButton button, std::uint64_t flags)
{
    moveTo(at, flags);
    desktop.input().pressed(button, flags);
}

void World::click(QPointF at, MouseButton button, std::uint64_t flags)
{
    press(at, button, flags);
    desktop.input().released(button, flags);
}

std::optional<Event> World::key(std::uint16_t code, std::uint64_t flags)
{
    Event event;
    event.keyCode = code;
    event.modifierFlags = flags;
    return desktop.input().keyDown(event);
}

void World::onWorker(const Work &work, double limit)
{
    bool isDone = false;
    dispatch.globalAsync(QualityOfService::userInitiated, [&] {
        work();
        isDone = true;
    });
    dispatch.advance(limit);
    ASSERT_TRUE(isDone);
}

} // namespace brimshade::desktop
