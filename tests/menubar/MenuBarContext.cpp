#include "MenuBarContext.h"
#include "platform/Dispatch.h"
#include "platform/Screens.h"

#include <gtest/gtest.h>

namespace brimshade::menubar::tests {

class MenuBarContext::NoSymbols : public platform::Symbols {
    platform::Image symbolImage(const QString &, const QString &, const platform::SymbolConfiguration &) override
    {
        return {};
    }
};

ExtraDescription item(const QString &identifier, double width)
{
    ExtraDescription extra;
    extra.role = u"AXMenuBarItem"_s;
    extra.identifier = identifier;
    extra.width = width;
    extra.actions = {u"AXPress"_s};
    return extra;
}

ExtraDescription itemAt(const QString &identifier, const QRectF &frame)
{
    ExtraDescription extra = item(identifier, frame.width());
    extra.frameKind = ExtraDescription::Frame::fixed;
    extra.frame = frame;
    return extra;
}

ExtraDescription group(std::vector<ExtraDescription> children)
{
    ExtraDescription extra;
    extra.role = u"AXGroup"_s;
    extra.children = std::move(children);
    return extra;
}

ExtraDescription button(const QRectF &frame)
{
    ExtraDescription extra = itemAt({}, frame);
    extra.role = u"AXButton"_s;
    extra.identifier.reset();
    return extra;
}

ApplicationDescription application(int pid, const QString &name, std::vector<ExtraDescription> extras)
{
    ApplicationDescription application;
    application.pid = pid;
    application.name = name;
    application.bundleIdentifier = u"app.%1"_s.arg(name.toLower());
    application.bundlePath = u"/Applications/%1.app"_s.arg(name);
    application.extras = std::move(extras);
    return application;
}

ApplicationDescription systemAgent(std::vector<ExtraDescription> extras)
{
    ApplicationDescription agent = application(300, u"Control Center"_s, std::move(extras));
    agent.bundleIdentifier = u"com.apple.MenuBarAgent"_s;
    return agent;
}

ApplicationDescription hung(ApplicationDescription application)
{
    application.hangs = true;
    return application;
}

desktop::DesktopDescription notchedDesktop(std::vector<ApplicationDescription> applications)
{
    desktop::DesktopDescription description;
    description.screens = {{u"Built-in Display"_s, QRectF(0, 0, 1512, 982), 37, 37, std::pair(663.0, 849.0)}};
    description.applications = std::move(applications);
    return description;
}

MenuBarContext::MenuBarContext(const desktop::DesktopDescription &description)
    : m_symbols(std::make_unique<NoSymbols>()), desktop({dispatch, *m_symbols, nullptr, nullptr}, description),
      platform(desktop.platform()), access(std::make_shared<MenuBarAccess>(platform))
{
}

MenuBarContext::~MenuBarContext() = default;

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
    m_seconds = onScanQueue([&] { extras = access->scan(screen, dividerFrame); });
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

QStringList names(const ExtraList &extras)
{
    QStringList list;
    for (const MenuExtra &extra : extras)
        list.append(extra.name);
    return list;
}

} // namespace brimshade::menubar::tests
