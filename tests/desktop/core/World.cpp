#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

DesktopDescription someDesktop()
{
    auto agent = systemAgent({extra(u"com.example.clock"_s, 132)});
    agent.pid = 10;
    return notchedDesktop({agent, application(11, {extra(u"a.one"_s, 30, {u"Open"_s, u"-"_s, u"Quit"_s})}),
                           application(12, {extra(u"b.two"_s), extra(u"b.three"_s)})});
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

QString World::barOrder()
{
    QStringList order;
    for (const BarItem &item : desktop.menuBar().items())
        order << item.identifier;
    return order.join(u' ');
}

QRectF World::barFrame(const QString &identifier)
{
    for (const BarItem &item : desktop.menuBar().items()) {
        if (item.identifier == identifier)
            return item.frame;
    }
    return {};
}

} // namespace brimshade::desktop
