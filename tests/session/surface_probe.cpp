// A bar and a panel on the desktop, driven and watched from outside: one JSON object per line on standard input, each
// answered by one on standard output; events come as lines with "event" in between. See surface_cases.py for the
// commands.
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/session/surface/WaylandGlobals.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>
#include <map>
#include <qpa/qplatformnativeinterface.h>
#include <string>
#include <unistd.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;
using namespace brimshade::desktop::session;

namespace {

constexpr auto kContent = R"(
import QtQuick
TextInput { anchors.fill: parent; focus: true; cursorVisible: false; font.pixelSize: 20; color: "white" }
)";

void say(const QJsonObject &object)
{
    std::cout << QJsonDocument(object).toJson(QJsonDocument::Compact).constData() << std::endl;
}

QRect rectOf(const QJsonValue &value)
{
    const QJsonArray numbers = value.toArray();
    return {numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt()};
}

QRegion regionOf(const QJsonValue &value)
{
    QRegion region;
    for (const auto &part : value.toArray())
        region += rectOf(part);
    return region;
}

class ProbeWindow : public QQuickWindow {
public:
    ProbeWindow(const QString &name, const QColor &color, QQmlEngine &engine)
    {
        setObjectName(name);
        setColor(color);
        QQmlComponent component(&engine);
        component.setData(kContent, {});
        m_input.reset(qobject_cast<QQuickItem *>(component.create()));
        m_input->setParentItem(contentItem());
    }

    QString text() const { return m_input->property("text").toString(); }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        QQuickWindow::mousePressEvent(event);
        say({{"event"_L1, "press"_L1},
             {"surface"_L1, objectName()},
             {"x"_L1, event->position().x()},
             {"y"_L1, event->position().y()}});
    }

private:
    std::unique_ptr<QQuickItem> m_input;
};

class Probe {
public:
    explicit Probe(ShellBackend &backend);
    QJsonObject obey(const QJsonObject &command);

private:
    void add(const QString &name, ShellSurface::Kind kind, const QColor &color);
    void place(ShellSurface &surface, const QJsonObject &wanted);
    void watch(bool on);
    QJsonObject state() const;
    static QJsonObject stateOf(const ShellSurface &surface);
    static void sync();

    struct Shown {
        std::unique_ptr<ProbeWindow> window;
        std::unique_ptr<ShellSurface> surface;
    };

    ShellBackend &m_backend;
    QQmlEngine m_engine;
    std::map<QString, Shown> m_shown;
};

Probe::Probe(ShellBackend &backend) : m_backend(backend)
{
    add(u"bar"_s, ShellSurface::Kind::Bar, QColor(200, 0, 0));
    add(u"panel"_s, ShellSurface::Kind::Overlay, QColor(0, 0, 200));
    add(u"menu"_s, ShellSurface::Kind::Overlay, QColor(0, 100, 0));
    QObject::connect(&backend, &ShellBackend::pressedOutside, [] { say({{"event"_L1, "outside"_L1}}); });
    QObject::connect(&backend, &ShellBackend::compositedChanged, [] { say({{"event"_L1, "composited"_L1}}); });
    QObject::connect(&backend.foreground(), &Foreground::applicationChanged, [&backend] {
        say({{"event"_L1, "application"_L1}, {"id"_L1, backend.foreground().applicationId()}});
    });
    QObject::connect(&backend.foreground(), &Foreground::coveredScreensChanged, [] {
        say({{"event"_L1, "covered"_L1}});
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, [] { say({{"event"_L1, "screens"_L1}}); });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, [] { say({{"event"_L1, "screens"_L1}}); });
}

void Probe::add(const QString &name, ShellSurface::Kind kind, const QColor &color)
{
    auto window = std::make_unique<ProbeWindow>(name, color, m_engine);
    auto surface = m_backend.createSurface(*window, kind);
    QObject::connect(surface.get(), &ShellSurface::configured, [name](const QSize &size) {
        say({{"event"_L1, "configured"_L1},
             {"surface"_L1, name},
             {"width"_L1, size.width()},
             {"height"_L1, size.height()}});
    });
    QObject::connect(surface.get(), &ShellSurface::closed, [name] {
        say({{"event"_L1, "closed"_L1}, {"surface"_L1, name}});
    });
    QObject::connect(window.get(), &QQuickWindow::frameSwapped, [name] {
        say({{"event"_L1, "frame"_L1}, {"surface"_L1, name}});
    });
    QObject::connect(window.get(), &QWindow::activeChanged, [name, window = window.get()] {
        say({{"event"_L1, window->isActive() ? "active"_L1 : "inactive"_L1}, {"surface"_L1, name}});
    });
    m_shown[name] = {std::move(window), std::move(surface)};
}

void Probe::place(ShellSurface &surface, const QJsonObject &wanted)
{
    for (QScreen *screen : ShellBackend::screens()) {
        if (screen->name() == wanted["screen"_L1].toString(screen->name())
            && (wanted.contains("screen"_L1) || !surface.screen()))
            surface.setScreen(screen);
    }
    if (wanted.contains("geometry"_L1))
        surface.setGeometry(rectOf(wanted["geometry"_L1]));
    if (wanted.contains("zone"_L1))
        surface.setZone(wanted["zone"_L1].toInt());
    if (wanted.contains("input"_L1))
        surface.setInputRegion(regionOf(wanted["input"_L1]));
    if (wanted.contains("drawn"_L1))
        surface.setDrawnRegion(regionOf(wanted["drawn"_L1]));
    if (wanted.contains("keyboard"_L1))
        surface.setTakesKeyboard(wanted["keyboard"_L1].toBool());
}

QJsonObject Probe::obey(const QJsonObject &command)
{
    const QString what = command["do"_L1].toString();
    const auto found = m_shown.find(command["surface"_L1].toString());
    ShellSurface *surface = found == m_shown.end() ? nullptr : found->second.surface.get();
    if (what == "show"_L1 && surface) {
        place(*surface, command);
        surface->show();
    } else if (what == "place"_L1 && surface)
        place(*surface, command);
    else if (what == "hide"_L1 && surface)
        surface->hide();
    else if (what == "hide-window"_L1 && surface) // behind the surface's back
        surface->window().hide();
    else if (what == "destroy"_L1 && surface)
        m_shown.erase(found);
    else if (what == "watch"_L1)
        watch(command["on"_L1].toBool());
    else if (what != "state"_L1)
        return {{"ok"_L1, false}};
    sync();
    return state();
}

// Returns once presses are heard: whoever asked for it makes them next.
void Probe::watch(bool on)
{
    m_backend.watchOutside(on);
    while (on && !m_backend.hearsOutside())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QJsonObject Probe::state() const
{
    QJsonObject surfaces;
    for (const auto &[name, shown] : m_shown) {
        QJsonObject of = stateOf(*shown.surface);
        of["text"_L1] = shown.window->text();
        surfaces[name] = of;
    }
    QJsonArray screens;
    QJsonArray covered;
    for (const QScreen *screen : ShellBackend::screens()) {
        screens.append(screen->name());
        if (m_backend.foreground().coversScreen(screen))
            covered.append(screen->name());
    }
    return {{"ok"_L1, true},
            {"surfaces"_L1, surfaces},
            {"screens"_L1, screens},
            {"covered"_L1, covered},
            {"application"_L1, m_backend.foreground().applicationId()},
            {"composited"_L1, m_backend.isComposited()}};
}

QJsonObject Probe::stateOf(const ShellSurface &surface)
{
    const QQuickWindow &window = surface.window();
    return {{"shown"_L1, surface.isShown()},
            {"visible"_L1, window.isVisible()},
            {"active"_L1, window.isActive()},
            {"width"_L1, window.width()},
            {"height"_L1, window.height()},
            {"scale"_L1, window.effectiveDevicePixelRatio()},
            {"screen"_L1, surface.screen() ? surface.screen()->name() : QString()}};
}

// When this returns, the display server has done everything that was requested before.
void Probe::sync()
{
    if (auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        std::free(xcb_get_input_focus_reply(x11->connection(), xcb_get_input_focus(x11->connection()), nullptr));
        return;
    }
    auto *native = QGuiApplication::platformNativeInterface();
    waitForAnswer(static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display")));
}

int run(int argc, char **argv)
{
    QLoggingCategory::setFilterRules(u"qt.qpa.wayland.info=false"_s); // warnings about having no screen
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &message) {
        if (!message.startsWith("QStandardPaths"_L1)) // about the runtime folder, which is the compositor's user's
            std::cerr << qUtf8Printable(message) << std::endl;
    });
    if (const auto prepared = ShellBackend::prepareEnvironment(); !prepared) {
        std::cerr << qUtf8Printable(prepared.error()) << std::endl;
        return 2;
    }
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setDefaultAlphaBuffer(true);
    new QGuiApplication(argc, argv); // never destroyed, see ShellBackend::end
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const auto backend = ShellBackend::create();
    if (!backend) {
        std::cerr << qUtf8Printable(backend.error()) << std::endl;
        return 2;
    }
    Probe probe(**backend);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    std::string pending;
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char bytes[4096];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0)
            return QGuiApplication::quit();
        pending.append(bytes, std::size_t(count));
        for (std::size_t end = 0; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1))
            say(probe.obey(QJsonDocument::fromJson(QByteArray(pending.data(), qsizetype(end))).object()));
    });
    say({{"event"_L1, "ready"_L1}});
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    ShellBackend::end(run(argc, argv));
}
