#include "LiveSession.h"
#include "HostedTray.h"
#include "RealClock.h"
#include "StateReport.h"
#include "TraySurroundings.h"
#include "app/AppDelegate.h"
#include "desktop/core/Desktop.h"
#include "desktop/script/ScriptRunner.h"
#include "desktop/services/AutostartLoginItem.h"
#include "desktop/services/HotkeyRegistry.h"
#include "desktop/services/SymbolService.h"
#include "desktop/services/X11KeyGrabber.h"
#include "desktop/services/shortcuts/PortalKeyGrabber.h"
#include "desktop/session/SessionClock.h"
#include "desktop/session/SessionHost.h"
#include "desktop/session/SessionNotices.h"
#include "desktop/session/SessionPreferences.h"
#include "desktop/session/SessionScreens.h"
#include "desktop/session/surface/ShellBackend.h"
#include "desktop/session/watchdog/StickCommand.h"
#include "desktop/session/watchdog/Watchdog.h"
#include "desktop/time/RealDispatch.h"
#include "desktop/tray/ItemPlaces.h"

#include <QDBusConnection>
#include <QFile>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

using desktop::session::SessionHost;
using desktop::session::SessionPreferences;
using desktop::session::SessionScreens;
using desktop::session::ShellBackend;

namespace {

QList<QByteArray> deviceTreeNames()
{
    constexpr qint64 most = 4096;
    QFile file(u"/proc/device-tree/compatible"_s);
    return file.open(QIODevice::ReadOnly) ? file.read(most).split('\0') : QList<QByteArray>();
}

bool isX11()
{
    return QGuiApplication::platformName() == "xcb"_L1;
}

} // namespace

// Declared in the order of creation; destroyed in reverse.
class LiveSession::Parts {
public:
    Parts(LiveSessionOptions options, std::unique_ptr<ShellBackend> shell);
    ~Parts();

    desktop::RealDispatch dispatch;
    desktop::SymbolService symbols;
    std::unique_ptr<ShellBackend> shell;
    std::unique_ptr<desktop::MemoryDefaults> defaults; // moved into the desktop once that exists
    SessionScreens screens;
    SessionPreferences preferences;
    desktop::Desktop desktop;
    SessionHost host;
    desktop::session::Watchdog watchdog;
    std::shared_ptr<app::AppDelegate> delegate;
    std::unique_ptr<desktop::session::ActivationTokens> tokens = desktop::session::ActivationTokens::create();
    std::unique_ptr<HostedTray> tray;
    RealClock clock;
    desktop::ScriptRunner script;

private:
    desktop::session::ScreenChoice screenChoice(const LiveSessionOptions &options) const;
    static desktop::DesktopDescription described(const SessionScreens &screens);
    QJsonObject state();
    void refuseInvented();
    void grabKeys();
    void watchOverKeys();
};

desktop::session::ScreenChoice LiveSession::Parts::screenChoice(const LiveSessionOptions &options) const
{
    auto choice = SessionPreferences::kept(*defaults, options.screen, options.isNotchSaid);
    choice.machine = desktop::session::machineNotch(deviceTreeNames());
    return choice;
}

desktop::DesktopDescription LiveSession::Parts::described(const SessionScreens &screens)
{
    desktop::DesktopDescription description;
    description.screens = screens.descriptions();
    return description;
}

LiveSession::Parts::Parts(LiveSessionOptions options, std::unique_ptr<ShellBackend> shell_)
    : shell(std::move(shell_)),
      defaults(options.defaults ? std::move(options.defaults) : std::make_unique<desktop::MemoryDefaults>()),
      screens(screenChoice(options)), preferences(screens, *defaults, QDBusConnection::sessionBus()),
      desktop(desktop::Desktop::Services{.dispatch = dispatch,
                                         .symbols = symbols,
                                         .defaults = std::move(defaults),
                                         .loginItems = std::make_unique<desktop::AutostartLoginItem>(),
                                         .needsPermission = false,
                                         .menuBarPreferences = &preferences,
                                         .printsLog = options.printsLog},
              described(screens)),
      host(desktop, screens, *shell),
      watchdog({.askMain = [this](const platform::Work &work) { dispatch.mainAsync(work); }}),
      delegate(std::make_shared<app::AppDelegate>(desktop.platform())), clock(dispatch, host),
      script(desktop, host, clock, [this] { return state(); })
{
    desktop::session::launchClock(desktop);
    desktop::session::showNotices(desktop);
    if (options.hostsTray) {
        tray = std::make_unique<HostedTray>(
            desktop, dispatch, surroundings([this](QPointF point) { return host.toScreen(point); }, tokens.get()),
            desktop::tray::ItemPlaces::kept, options.stateFile);
        if (isX11())
            tray->dockIcons([this](QPointF point) { return host.toScreen(point); }, qGuiApp->devicePixelRatio());
    }
    refuseInvented();
    desktop::session::addStickCommand(script);
    grabKeys();
    watchOverKeys();
    desktop.platform().application.setActivationPolicyAccessory();
    delegate->applicationDidFinishLaunching();
}

QJsonObject LiveSession::Parts::state()
{
    QJsonObject state = stateReport(*delegate);
    const QString window = host.windowWithKeys();
    state.insert(u"keys"_s, window.isEmpty() ? QJsonValue() : window);
    state.insert(u"outside"_s, host.hearsOutside());
    return state;
}

// What a script can do only to an invented desktop.
void LiveSession::Parts::refuseInvented()
{
    for (const QString &name :
         {u"launch"_s, u"quit"_s, u"change"_s, u"screens"_s, u"trust"_s, u"menuBar"_s, u"moves"_s, u"loginItem"_s}) {
        script.add(name, [name](desktop::Arguments &) {
            return std::unexpected(u"do: only an invented desktop can \"%1\", this is a real session"_s.arg(name));
        });
    }
}

void LiveSession::Parts::grabKeys()
{
    if (isX11()) {
        desktop.hotkeys().setGrabber(desktop::X11KeyGrabber::create(0)); // the panel takes the keys by itself
        desktop.hotkeys().setModeObserver([this](bool areOff) { host.takeEveryKey(areOff); });
        return;
    }
    auto portal = std::make_unique<desktop::PortalKeyGrabber>(QDBusConnection::sessionBus());
    QObject::connect(portal.get(), &desktop::PortalKeyGrabber::availabilityChanged, &preferences,
                     [this, &portal = *portal] { preferences.setShortcutsWork(portal.isAvailable()); });
    preferences.setShortcutsWork(false); // until it has answered
    desktop.hotkeys().setGrabber(std::move(portal));
}

void LiveSession::Parts::watchOverKeys()
{
    QObject::connect(&host, &SessionHost::takesKeyboardChanged, &host,
                     [this] { watchdog.watch(host.takesKeyboard()); });
}

LiveSession::Parts::~Parts()
{
    dispatch.stop(); // workers may be in the middle of a scan or a move and must end before what they use goes
}

std::expected<std::unique_ptr<LiveSession>, QString> LiveSession::create(LiveSessionOptions options)
{
    auto shell = ShellBackend::create();
    if (!shell)
        return std::unexpected(shell.error());
    return std::unique_ptr<LiveSession>(
        new LiveSession(std::make_unique<Parts>(std::move(options), std::move(*shell))));
}

LiveSession::LiveSession(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) { }
LiveSession::~LiveSession() = default;

QJsonObject LiveSession::run(const QJsonObject &command)
{
    return m_parts->script.run(command);
}

app::AppDelegate &LiveSession::delegate()
{
    return *m_parts->delegate;
}

desktop::Desktop &LiveSession::desktop()
{
    return m_parts->desktop;
}

} // namespace brimshade::composition
