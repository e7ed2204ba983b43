#include "ElementReader.h"

#include <cmath>

namespace brimshade::menubar {

namespace {

using namespace Qt::StringLiterals;

const QString kExtrasMenuBar = u"AXExtrasMenuBar"_s;
const QString kPosition = u"AXPosition"_s;
const QString kSize = u"AXSize"_s;

constexpr double kMessagingTimeout = 0.25; // seconds

} // namespace

template <typename T> T ElementReader::value(const AXUIElement &element, const QString &attribute, T otherwise)
{
    if (m_isHung)
        return otherwise;
    auto value = m_accessibility.copyAttributeValue(element, attribute);
    m_isHung = !value && value.error() == platform::kAXErrorCannotComplete;
    T *wanted = value ? std::get_if<T>(&*value) : nullptr;
    m_hasFailed = m_hasFailed || !wanted;
    return wanted ? std::move(*wanted) : otherwise;
}

AXUIElement ElementReader::extrasMenuBar(int processIdentifier, double messagingTimeout)
{
    const AXUIElement application = m_accessibility.createApplication(processIdentifier);
    if (!application)
        return nullptr;
    m_accessibility.setMessagingTimeout(application, messagingTimeout);
    AXUIElement menuBar = value<AXUIElement>(application, kExtrasMenuBar);
    adopt(menuBar);
    return menuBar;
}

void ElementReader::adopt(const AXUIElement &element)
{
    if (element)
        m_accessibility.setMessagingTimeout(element, kMessagingTimeout);
}

QString ElementReader::string(const AXUIElement &element, const QString &attribute)
{
    return value<QString>(element, attribute);
}

std::vector<AXUIElement> ElementReader::elements(const AXUIElement &element, const QString &attribute)
{
    auto elements = value<std::vector<AXUIElement>>(element, attribute);
    std::erase(elements, nullptr);
    for (const AXUIElement &each : elements)
        adopt(each);
    return elements;
}

QRectF ElementReader::frame(const AXUIElement &element)
{
    const auto finite = [](double a, double b) { return std::isfinite(a) && std::isfinite(b); };
    const auto position = value<QPointF>(element, kPosition);
    const auto size = value<QSizeF>(element, kSize, {0, 0});
    return {finite(position.x(), position.y()) ? position : QPointF(),
            finite(size.width(), size.height()) ? size : QSizeF(0, 0)};
}

} // namespace brimshade::menubar
