#include "Attributes.h"

#include <cmath>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kExtrasMenuBar = u"AXExtrasMenuBar"_s;
const QString kPosition = u"AXPosition"_s;
const QString kSize = u"AXSize"_s;

template <typename T>
T attribute(Accessibility &accessibility, const AXUIElement &element, const QString &name, T otherwise = {})
{
    auto value = accessibility.copyAttributeValue(element, name);
    T *wanted = value ? std::get_if<T>(&*value) : nullptr;
    return wanted ? std::move(*wanted) : otherwise;
}

} // namespace

QString stringAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name)
{
    return attribute<QString>(accessibility, element, name);
}

AXUIElement elementAttribute(Accessibility &accessibility, const AXUIElement &element, const QString &name)
{
    return attribute<AXUIElement>(accessibility, element, name);
}

std::vector<AXUIElement> elementsAttribute(Accessibility &accessibility, const AXUIElement &element,
                                           const QString &name)
{
    return attribute<std::vector<AXUIElement>>(accessibility, element, name);
}

QRectF frameOf(Accessibility &accessibility, const AXUIElement &element)
{
    const auto finite = [](double a, double b) { return std::isfinite(a) && std::isfinite(b); };
    const auto position = attribute<QPointF>(accessibility, element, kPosition);
    const auto size = attribute<QSizeF>(accessibility, element, kSize, {0, 0});
    return {finite(position.x(), position.y()) ? position : QPointF(),
            finite(size.width(), size.height()) ? size : QSizeF(0, 0)};
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
