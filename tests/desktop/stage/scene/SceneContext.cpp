#include "SceneContext.h"

#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_DesktopPlugin)
Q_IMPORT_QML_PLUGIN(Brimshade_StagePlugin)

namespace brimshade::desktop {

constexpr double kHeight = 700;

MenuEntry entry(int id, const QString &title)
{
    MenuEntry entry;
    entry.id = id;
    entry.title = title;
    return entry;
}

MenuEntry separator(int id)
{
    MenuEntry entry;
    entry.id = id;
    entry.isSeparator = true;
    return entry;
}

DesktopDescription SceneContext::smallDesktop()
{
    DesktopDescription description;
    description.screens = {plainScreen({0, 0, 1000, kHeight})};
    description.screens[0].menuBarHeight = 30;
    description.pointer = QPointF(500, 600);
    description.applications = {
        application(812, u"Relay"_s, {extra(u"relay.main"_s, 30, {u"Open Relay"_s, u"-"_s, u"Quit"_s})})};
    return description;
}

SceneContext::SceneContext(const DesktopDescription &description, double scale) : m_scale(scale)
{
    qmlRegisterType(QUrl(u"qrc:/probes/ProbeView.qml"_s), "Brimshade.Probes", 1, 0, "ProbeView");
    m_desktop = std::make_unique<Desktop>(Desktop::Services{m_clock, m_symbols, nullptr, nullptr}, description);
    remakeScene();
}

void SceneContext::remakeScene()
{
    m_scene.reset();
    m_scene = SceneHost::offscreen(*m_desktop, &m_clock, m_scale);
    settle();
}

std::unique_ptr<platform::Window> SceneContext::probe(const QString &name, const QRectF &frame,
                                                      platform::WindowAttributes attributes)
{
    attributes.name = name;
    attributes.contentRect = platform::flipped(frame, kHeight);
    auto window = m_desktop->windows().createWindow(
        attributes,
        platform::HostedView{
            u"Brimshade.Probes"_s, u"ProbeView"_s, {{u"recorder"_s, QVariant::fromValue<QObject *>(&m_recorder)}}});
    window->makeKeyAndOrderFront();
    settle();
    return window;
}

void SceneContext::move(QPointF to)
{
    m_scene->movePointer(to);
    settle();
}

void SceneContext::click(QPointF at, MouseButton button)
{
    move(at);
    m_scene->press(button);
    settle();
    m_scene->release(button);
    settle();
}

void SceneContext::key(std::uint16_t code, const QString &characters, std::uint64_t flags)
{
    m_scene->key({.type = platform::keyDown, .modifierFlags = flags, .keyCode = code, .characters = characters});
    settle();
}

void SceneContext::advance(double seconds)
{
    m_clock.advance(seconds);
    settle();
}

void SceneContext::settle()
{
    m_clock.runDue();
    m_scene->settle();
    m_clock.runDue();
}

QList<QQuickItem *> SceneContext::findAll(const QString &objectName)
{
    QList<QQuickItem *> found;
    QList<QQuickItem *> pending{m_scene->quickWindow()->contentItem()};
    while (!pending.isEmpty()) {
        QQuickItem *item = pending.takeFirst();
        if (item->objectName() == objectName && item->isVisible())
            found << item;
        pending << item->childItems();
    }
    return found;
}

} // namespace brimshade::desktop
