#include "Session.h"
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
#include "desktop/stage/scene/SceneHost.h"
#include "desktop/stage/world/WorldCommands.h"
#include "desktop/time/RealDispatch.h"
#include "desktop/time/VirtualDispatch.h"
#include "desktop/tray/ItemPlaces.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace brimshade::composition {

using namespace Qt::StringLiterals;

namespace {

class VirtualClock : public desktop::ScriptClock {
public:
    VirtualClock(desktop::VirtualDispatch &dispatch, desktop::SceneHost &scene) : m_dispatch(dispatch), m_scene(scene)
    {
    }
    void settle() override
    {
        m_dispatch.runDue();
        m_scene.settle();
        m_dispatch.runDue(); // what the layout has queued
    }
    void advance(double seconds) override { m_dispatch.advance(seconds); }
    double now() const override { return m_dispatch.now(); }

private:
    desktop::VirtualDispatch &m_dispatch;
    desktop::SceneHost &m_scene;
};

} // namespace

// Declared in the order of creation; destroyed in reverse.
class Session::Parts {
public:
    explicit Parts(SessionOptions options);
    ~Parts();

    std::unique_ptr<desktop::RealDispatch> realTime;
    std::unique_ptr<desktop::VirtualDispatch> virtualTime;
    desktop::SymbolService symbols;
    std::unique_ptr<desktop::Desktop> desktop;
    std::unique_ptr<desktop::SceneHost> scene;
    std::shared_ptr<app::AppDelegate> delegate;
    std::unique_ptr<desktop::session::ActivationTokens> tokens; // null without a window
    std::unique_ptr<HostedTray> tray;
    std::unique_ptr<desktop::ScriptClock> clock;
    std::unique_ptr<desktop::ScriptRunner> script;

private:
    platform::Dispatch &dispatch() const;
    void buildDesktop(SessionOptions &options);
    void buildScene(const SessionOptions &options);
    void buildScript();
};

platform::Dispatch &Session::Parts::dispatch() const
{
    return virtualTime ? static_cast<platform::Dispatch &>(*virtualTime) : *realTime;
}

Session::Parts::Parts(SessionOptions options)
{
    if (options.isRealTime)
        realTime = std::make_unique<desktop::RealDispatch>();
    else
        virtualTime = std::make_unique<desktop::VirtualDispatch>();
    buildDesktop(options);
    buildScene(options);
    delegate = std::make_shared<app::AppDelegate>(desktop->platform());
    if (options.hasWindow)
        tokens = desktop::session::ActivationTokens::create();
    if (options.hostsTray) {
        const auto places = options.stateFile ? desktop::tray::ItemPlaces::kept : desktop::tray::ItemPlaces::listed;
        tray = std::make_unique<HostedTray>(
            *desktop, dispatch(), surroundings([this](QPointF point) { return scene->toScreen(point); }, tokens.get()),
            places, options.stateFile);
    }
    buildScript();
    desktop->platform().application.setActivationPolicyAccessory();
    delegate->applicationDidFinishLaunching();
    if (!options.hasWindow)
        clock->settle();
}

void Session::Parts::buildDesktop(SessionOptions &options)
{
    desktop = std::make_unique<desktop::Desktop>(
        desktop::Desktop::Services{.dispatch = dispatch(),
                                   .symbols = symbols,
                                   .defaults = std::move(options.defaults),
                                   .loginItems = options.isScripted ? std::unique_ptr<platform::LoginItems>()
                                                                    : std::make_unique<desktop::AutostartLoginItem>(),
                                   .printsLog = options.printsLog},
        options.description);
}

void Session::Parts::buildScene(const SessionOptions &options)
{
    scene = options.hasWindow ? desktop::SceneHost::window(*desktop)
                              : desktop::SceneHost::offscreen(*desktop, virtualTime.get(), options.scale);
    if (options.hasWindow && QGuiApplication::platformName() == "xcb"_L1) {
        // So that the shortcut works while another program of the session has the keyboard.
        const auto window = static_cast<std::uint32_t>(scene->quickWindow()->winId());
        desktop->hotkeys().setGrabber(desktop::X11KeyGrabber::create(window));
        desktop->hotkeys().setModeObserver(
            [window = scene->quickWindow()](bool areOff) { window->setKeyboardGrabEnabled(areOff); });
    }
}

void Session::Parts::buildScript()
{
    if (virtualTime)
        clock = std::make_unique<VirtualClock>(*virtualTime, *scene);
    else
        clock = std::make_unique<RealClock>(*realTime, *scene);
    script =
        std::make_unique<desktop::ScriptRunner>(*desktop, *scene, *clock, [this] { return stateReport(*delegate); });
    desktop::addWorldCommands(*script, *desktop);
}

Session::Parts::~Parts()
{
    // Workers may be in the middle of a scan or a move: they must end before what they use goes.
    if (virtualTime)
        virtualTime->stop();
    else
        realTime->stop();
}

Session::Session(SessionOptions options) : m_parts(std::make_unique<Parts>(std::move(options))) { }
Session::~Session() = default;

QJsonObject Session::run(const QJsonObject &command)
{
    return m_parts->script->run(command);
}
app::AppDelegate &Session::delegate()
{
    return *m_parts->delegate;
}
desktop::Desktop &Session::desktop()
{
    return *m_parts->desktop;
}
desktop::SceneHost &Session::scene()
{
    return *m_parts->scene;
}
desktop::VirtualDispatch *Session::virtualTime()
{
    return m_parts->virtualTime.get();
}

} // namespace brimshade::composition
