#include "Attributes.h"

#include <cmath>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kExtrasMenuBar = u"AXExtrasMenuBar"_s;
const QString kPosition = u"AXPosition"_s;
const QString kSize = u"AXSize"_s;

template <typename T>
std::optional<T> attribute(Accessibility &accessibility, const AXUIElement &element, const QString &name)
{
    auto value = accessibility.copyAttributeValue(element, name);
    if (value)
        if (T *wanted = std::get_if<T>(&*value))
            return std::move(*wanted);
    return std::nullopt;
}

} // namespace

std::optional<QString> stringAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name)
{
    return attribute<QString>(accessibility, element, name);
}

AXUIElement elementAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name)
{
    return attribute<AXUIElement>(accessibility, element, name).value_or(nullptr);
}

std::vector<AXUIElement> elementsAttribute(Accessibility &accessibility, const AXUIElement &element,
                                           const QString &name)
{
    auto elements = attribute<std::vector<AXUIElement>>(accessibility, element, name);
    return elements ? std::move(*elements) : std::vector<AXUIElement>();
}

QRectF frameOf(Accessibility &accessibility, const AXUIElement &element)
{
    QRectF frame;
    if (const auto position = attribute<QPointF>(accessibility, element, kPosition))
        if (std::isfinite(position->x()) && std::isfinite(position->y()))
            frame.moveTopLeft(*position);
    if (const auto size = attribute<QSizeF>(accessibility, element, kSize))
        if (std::isfinite(size->width()) && std::isfinite(size->height()))
            frame.setSize(*size);
    return frame;
}

AXUIElement extrasMenuBar(Accessibility &accessibility, int processIdentifier, double messagingTimeout)
{
    const AXUIElement application = accessibility.createApplication(processIdentifier);
    if (!application)
        return nullptr;
    accessibility.setMessagingTimeout(application, messagingTimeout);
    return elementAttribute(accessibility, application, kExtrasMenuBar);
}

} // namespace brimshade::menubar
