#include "ElementFinder.h"
#include "Json.h"
#include "ScriptHost.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr double kFaintest = 0.01;

// The part of an item that its ancestors do not clip away.
struct Exposure {
    QRectF frame;
    double opacity = 1;
    QString window = u"desktop"_s;
};

Exposure exposureOf(const QQuickItem &item, const QRectF &viewport)
{
    Exposure exposure;
    exposure.frame = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    for (const QQuickItem *each = &item; each; each = each->parentItem()) {
        exposure.opacity *= each->opacity();
        if (const QVariant group = each->property("groupOpacity"); group.isValid())
            exposure.opacity *= group.toDouble();
        if (each != &item && each->clip())
            exposure.frame &= each->mapRectToScene(each->clipRect());
        const QVariant window = each->property("brimshadeWindow");
        if (window.isValid() && !window.toString().isEmpty())
            exposure.window = window.toString();
    }
    exposure.frame &= viewport;
    return exposure;
}

bool isInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::PopupMenu:
    case QAccessible::EditableText:
    case QAccessible::Link:
    case QAccessible::PageTab:
        return true;
    default:
        return false;
    }
}

QString roleName(QAccessible::Role role)
{
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
}

FoundElement describe(QAccessibleInterface &element, const QQuickItem &item, const Exposure &exposure)
{
    const QAccessible::State state = element.state();
    FoundElement found;
    found.window = exposure.window;
    found.role = roleName(element.role());
    found.name = element.text(QAccessible::Name);
    found.description = element.text(QAccessible::Description);
    found.frame = exposure.frame;
    found.isEnabled = item.isEnabled(); // Qt 6.4 does not report Quick items as disabled
    found.isCheckable = state.checkable;
    found.isChecked = state.checked;
    found.isInteractive = isInteractive(element.role());
    found.opacity = exposure.opacity;
    return found;
}

void collect(QAccessibleInterface *element, const QRectF &viewport, std::vector<FoundElement> &into)
{
    if (!element || !element->isValid())
        return;
    if (const auto *item = qobject_cast<QQuickItem *>(element->object())) {
        if (!item->isVisible())
            return;
        const Exposure exposure = exposureOf(*item, viewport);
        if (exposure.opacity <= kFaintest)
            return;
        if (!exposure.frame.isEmpty())
            into.push_back(describe(*element, *item, exposure));
    }
    for (int i = 0; i < element->childCount(); ++i)
        collect(element->child(i), viewport, into);
}

} // namespace

QJsonObject FoundElement::toJson() const
{
    return {{u"window"_s, window},
            {u"role"_s, role},
            {u"name"_s, name},
            {u"description"_s, description},
            {u"frame"_s, json::rect(frame)},
            {u"enabled"_s, isEnabled},
            {u"checked"_s, isCheckable ? QJsonValue(isChecked) : QJsonValue()},
            {u"opacity"_s, opacity}};
}

std::vector<FoundElement> visibleElements(const ScriptHost &host)
{
    std::vector<FoundElement> all;
    for (const ScriptHost::View &view : host.views()) {
        std::vector<FoundElement> elements;
        collect(QAccessible::queryAccessibleInterface(view.window),
                QRectF(0, 0, view.window->width(), view.window->height()), elements);
        for (FoundElement &element : elements) {
            element.frame = {view.toDisplay(element.frame.topLeft()), view.toDisplay(element.frame.bottomRight())};
            all.push_back(std::move(element));
        }
    }
    return all;
}

} // namespace brimshade::desktop
