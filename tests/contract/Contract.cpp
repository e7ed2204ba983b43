#include "Driver.h"

using namespace brimshade::platform;

namespace brimshade::contract {

void Contract::onWorker(const Work &work, double limit)
{
    bool isDone = false;
    platform.dispatch.globalAsync(QualityOfService::userInitiated, [&] {
        work();
        platform.dispatch.mainAsync([&] { isDone = true; });
    });
    driver->advance(limit);
    ASSERT_TRUE(isDone);
}

std::unique_ptr<Window> Contract::makeWindow(const QRectF &rect, bool canBecomeKey)
{
    WindowAttributes attributes;
    attributes.name = u"contract"_s;
    attributes.contentRect = rect;
    attributes.canBecomeKey = canBecomeKey;
    return platform.windows.createWindow(attributes, HostedView());
}

std::vector<AXUIElement> Contract::items(int pid)
{
    Accessibility &accessibility = platform.accessibility;
    const auto bar = accessibility.copyAttributeValue(accessibility.createApplication(pid), u"AXExtrasMenuBar"_s);
    if (!bar)
        return {};
    const auto children = accessibility.copyAttributeValue(std::get<AXUIElement>(*bar), u"AXChildren"_s);
    return children ? std::get<std::vector<AXUIElement>>(*children) : std::vector<AXUIElement>();
}

QPointF Contract::toDisplay(QPointF inScreenSpace) const
{
    return flipped(inScreenSpace, platform.screens.screens().at(0).frame.height());
}

QPointF Contract::emptySpot() const
{
    const QRectF area = platform.screens.screens().at(0).visibleFrame;
    return toDisplay({minX(area) + 5, minY(area) + 5});
}

} // namespace brimshade::contract
