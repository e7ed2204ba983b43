#include "TrayHostContext.h"

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>

namespace brimshade::desktop::tray {

TrayHostContext::TrayHostContext(const DesktopDescription &description)
    : m_desktop({m_dispatch, m_symbols, nullptr, nullptr}, description),
      m_host(
          m_desktop, [this](const QString &) { return m_bus.connection(u"own"_s); }, m_dispatch, ItemPlaces::kept)
{
    waitForWatcher();
}

void TrayHostContext::waitForWatcher()
{
    waitUntil([&] {
        const auto names = m_bus.connection(u"asker"_s).interface()->registeredServiceNames().value();
        return names.contains(u"org.kde.StatusNotifierWatcher"_s);
    });
}

std::unique_ptr<FakeProgram> TrayHostContext::start(const QString &name, const QString &title)
{
    auto program = std::make_unique<FakeProgram>(m_bus.connection(name));
    program->properties = {
        {u"Id"_s, u"item"_s}, {u"Title"_s, title}, {u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/Menu"_s))}};
    program->menu.children = {labelled(1, u"Open"_s), labelled(2, u"Quit"_s)};
    program->registerItem(u"/StatusNotifierItem"_s);
    return program;
}

void TrayHostContext::end(std::unique_ptr<FakeProgram> program, const QString &name)
{
    program.reset();
    m_bus.disconnect(name);
}

QStringList TrayHostContext::titles()
{
    QStringList result;
    for (const auto &each : m_desktop.menuBar().items()) {
        if (!each.isOwn && each.pid == hostedPid())
            result.prepend(each.title);
    }
    return result;
}

void TrayHostContext::waitForTitles(const QStringList &wanted, std::source_location where)
{
    waitUntil([&] { return titles() == wanted; }, where);
}

int TrayHostContext::hostedPid()
{
    for (const auto &each : m_desktop.menuBar().items()) {
        if (!each.isOwn)
            return each.pid;
    }
    return 0;
}

void TrayHostContext::press(int index)
{
    auto &accessibility = m_desktop.platform().accessibility;
    const auto bar =
        accessibility.copyAttributeValue(accessibility.createApplication(hostedPid()), u"AXExtrasMenuBar"_s);
    const auto items = accessibility.copyAttributeValue(std::get<platform::AXUIElement>(*bar), u"AXChildren"_s);
    const auto &item = std::get<std::vector<platform::AXUIElement>>(*items).at(static_cast<std::size_t>(index));
    EXPECT_EQ(accessibility.performAction(item, u"AXPress"_s), platform::kAXErrorSuccess);
    m_dispatch.runDue();
}

void TrayHostContext::click(const QString &name, MouseButton button)
{
    for (const auto &each : m_desktop.menuBar().items()) {
        if (each.title != name && each.identifier != name)
            continue;
        m_desktop.input().pointerMoved(each.frame.center(), 0);
        m_desktop.input().pressed(button, 0);
        m_desktop.input().released(button, 0);
        return;
    }
    ADD_FAILURE() << "no item " << name.toStdString();
}

} // namespace brimshade::desktop::tray
