#include "MenuBarContext.h"

namespace brimshade::menubar::tests {

double MenuBarContext::onScanQueue(const platform::Work &work)
{
    const auto queue = dispatch.makeSerialQueue(u"brimshade.scan"_s, platform::QualityOfService::userInitiated);
    std::optional<double> seconds;
    queue->async([&] {
        const double start = dispatch.now();
        work();
        seconds = dispatch.now() - start;
    });
    for (int i = 0; i < 1000 && !seconds; ++i)
        dispatch.advance(0.01);
    EXPECT_TRUE(seconds) << "the work did not end within ten seconds";
    return seconds.value_or(0);
}

ExtraList MenuBarContext::scan(std::optional<QRectF> dividerFrame)
{
    const platform::Screen screen = platform.screens.screens().front();
    ExtraList extras;
    secondsOfLastScan = onScanQueue([&] { extras = access->scan(screen, dividerFrame); });
    return extras;
}

MenuExtra MenuBarContext::found(const QString &identifier)
{
    for (const MenuExtra &extra : scan())
        if (extra.id.endsWith(u'-' + identifier))
            return extra;
    ADD_FAILURE() << qPrintable(identifier) << " was not found";
    return {};
}

QStringList ids(const ExtraList &extras)
{
    QStringList list;
    for (const MenuExtra &extra : extras)
        list.append(extra.id);
    return list;
}

} // namespace brimshade::menubar::tests
