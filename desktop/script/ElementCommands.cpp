#include "ElementFinder.h"
#include "ScriptHost.h"
#include "ScriptRunner.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuHost.h"

#include <QJsonArray>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

ScriptRunner::Result ScriptRunner::find(Arguments &arguments)
{
    const QString text = arguments.text(u"text"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    m_host.settle();
    QJsonArray elements;
    for (const FoundElement &element : visibleElements(m_host)) {
        if (element.name.contains(text) || element.description.contains(text))
            elements.append(element.toJson());
    }
    return QJsonObject{{u"elements"_s, elements}};
}

ScriptRunner::Result ScriptRunner::pressElement(Arguments &arguments)
{
    const QString name = arguments.text(u"name"_s);
    const QString role = arguments.text(u"role"_s, QString());
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);

    m_host.settle();
    std::vector<FoundElement> elements = visibleElements(m_host);
    std::erase_if(elements, [&](const FoundElement &element) {
        return !element.isInteractive || element.name != name || (!role.isEmpty() && element.role != role);
    });
    if (elements.size() != 1) {
        return std::unexpected(
            u"name: %1 interactive elements are named \"%2\", expected one"_s.arg(elements.size()).arg(name));
    }
    clickAt(elements.front().frame.center(), MouseButton::left, 0);
    return {};
}

ScriptRunner::Result ScriptRunner::menu(Arguments &arguments)
{
    const QPointF at = arguments.point(u"at"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    clickAt(at, MouseButton::right, 0);
    m_clock.settle();
    if (!m_desktop.menus().openMenu())
        return std::unexpected(u"at: no menu opens there"_s);
    return {};
}

ScriptRunner::Result ScriptRunner::choose(Arguments &arguments)
{
    const QString title = arguments.text(u"title"_s);
    if (const auto fault = arguments.finish())
        return std::unexpected(*fault);
    if (!m_desktop.menus().openMenu())
        return std::unexpected(u"title: no menu is open"_s);
    if (!m_desktop.menus().choose(title))
        return std::unexpected(u"title: the open menu has no enabled entry \"%1\""_s.arg(title));
    return {};
}

} // namespace brimshade::desktop
