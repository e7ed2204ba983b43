#include "Desktop.h"
#include "AccessibilityService.h"
#include "Applications.h"
#include "BarLayout.h"
#include "InputRouter.h"
#include "Inspection.h"
#include "ItemService.h"
#include "MenuBar.h"
#include "MenuHost.h"
#include "Permission.h"
#include "ProgramApplication.h"
#include "ScreenGeometry.h"
#include "ScreensService.h"
#include "StatusBarService.h"
#include "SyntheticEvents.h"
#include "UserNotificationService.h"
#include "WindowInfo.h"
#include "WindowStack.h"
#include "WorkspaceService.h"
#include "desktop/services/HotkeyRegistry.h"
#include "desktop/services/LogWriter.h"
#include "desktop/services/MemoryDefaults.h"
#include "desktop/services/ScriptedLoginItem.h"

#include <QCoreApplication>
#include <algorithm>

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

// This process's own pid, or the next one that no described application has: a desktop file cannot know this process.
int freePid(const std::vector<ApplicationDescription> &applications)
{
    auto pid = static_cast<int>(QCoreApplication::applicationPid());
    while (std::ranges::find(applications, pid, &ApplicationDescription::pid) != applications.end())
        ++pid;
    return pid;
}

} // namespace

// In the order in which they depend on each other; destroyed in reverse.
struct Desktop::Parts {
    Parts(Services given, const DesktopDescription &description);

    Services services;
    SharedState state;
    LogWriter log{services.printsLog};
    HotkeyRegistry hotkeys;
    Notifications notifications;
    Inspection inspection{state};
    Permission permission{state, services.needsPermission};
    ScreensService screens{state};
    WindowInfoService windowInfo{state};
    WindowStack windows{state};
    MenuHost menus{state};
    MenuBar menuBar{services.dispatch, state, menus};
    ProgramApplication application{state, windows};
    Applications applications{state, menuBar, menus};
    ItemService items{applications};
    UserNotificationService userNotifications;
    WorkspaceService workspace;
    AccessibilityService accessibility{
        services.dispatch,
        state,
        permission,
        {.pressed = [this](const ElementPointer &item) { applications.asked(ItemGesture::press, item); },
         .pressedInVain = [this](const ElementPointer &item) { applications.askedInVain(item); }}};
    StatusBarService statusBar;
    InputRouter input{{state, application, permission, windows, menus, menuBar, statusBar, hotkeys}};
    SyntheticEvents events{services.dispatch, state, input};
    ScriptedLoginItem *scriptedLoginItem = nullptr;

    void applyScreens(const std::vector<ScreenDescription> &descriptions);
    void publishBars();
    void start(const DesktopDescription &description);
};

Desktop::Parts::Parts(Services given, const DesktopDescription &description)
    : services(std::move(given)), workspace(state, freePid(description.applications)),
      statusBar({state, menuBar, menus, application, notifications, *services.defaults, workspace.processIdentifier()})
{
}

void Desktop::Parts::start(const DesktopDescription &description)
{
    services.defaults->fill(description.defaults); // first: what reads them comes later
    state.write([&](DisplayState &display) {
        display.isTrusted = description.trusted;
        display.displayNames = description.displayNames;
    });
    applyScreens(description.screens);
    const QSizeF primary = description.screens.empty() ? QSizeF(0, 0) : description.screens.front().frame.size();
    state.write([&](DisplayState &display) {
        display.pointer = description.pointer.value_or(QPointF(primary.width() / 2, primary.height() / 2));
    });
    menuBar.setMovesAccepted(description.movesAccepted);
    menuBar.setShowing(description.menuBarShowing);
    publishBars();
    menuBar.settleNow([&] {
        for (const ApplicationDescription &application : description.applications)
            applications.launch({.description = application});
    });
    workspace.publishOwn();
}

void Desktop::Parts::applyScreens(const std::vector<ScreenDescription> &descriptions)
{
    state.write([&](DisplayState &display) {
        display.screens.clear();
        std::ranges::transform(descriptions, std::back_inserter(display.screens), makeScreen);
    });
    menuBar.update([this] {
        menuBar.setScreens();
        statusBar.barChanged();
    });
    windows.screensChanged();
    permission.screensChanged();
    publishBars();
}

void Desktop::Parts::publishBars()
{
    state.write([showing = menuBar.isShowing()](DisplayState &display) {
        display.menuBarInfo.clear();
        if (!showing || display.screens.empty())
            return;
        const double primaryHeight = display.screens.front().frame.height();
        for (const Screen &screen : display.screens) {
            if (const QRectF bar = barFrame(screen, primaryHeight); !bar.isEmpty()) // not every screen has one
                display.menuBarInfo.push_back(desktop::windowInfo(kMainMenuWindowLevel, bar));
        }
    });
}

Desktop::Desktop(Services services, const DesktopDescription &description)
{
    ScriptedLoginItem *scripted = nullptr;
    if (!services.defaults)
        services.defaults = std::make_unique<MemoryDefaults>();
    if (!services.loginItems) {
        const auto item = description.loginItem.value_or(LoginItemDescription());
        auto owned = std::make_unique<ScriptedLoginItem>();
        owned->answer(static_cast<LoginItemStatus>(item.status), item.failure);
        scripted = owned.get();
        services.loginItems = std::move(owned);
    }
    m_parts = std::make_unique<Parts>(std::move(services), description);
    m_parts->scriptedLoginItem = scripted;
    m_parts->start(description);

    connect(&m_parts->permission, &Permission::changed, this, &Desktop::changed);
    connect(&m_parts->applications, &Applications::notified, this, &Desktop::notify);
    connect(&m_parts->userNotifications, &UserNotificationService::added, this, &Desktop::notify);
    connect(&m_parts->applications, &Applications::acted, this, &Desktop::acted);
    connect(&m_parts->applications, &Applications::offersChanged, this, [this] { m_parts->items.tellOfOffers(); });
    connect(&m_parts->applications, &Applications::itemsChanged, this, [this] { m_parts->items.tellOfItems(); });
    connect(&m_parts->input, &InputRouter::acted, this, &Desktop::acted);
    m_parts->hotkeys.setObserver([this] { Q_EMIT acted(); });
    connect(&m_parts->application, &ProgramApplication::terminated, this, &Desktop::terminated);
    connect(&m_parts->workspace, &WorkspaceService::accessibilityPageOpened, &m_parts->permission,
            &Permission::openPage);
    connect(&m_parts->workspace, &WorkspaceService::otherApplicationOpened, &m_parts->windows,
            &WindowStack::deactivate);
}

Desktop::~Desktop() = default;

Platform Desktop::platform()
{
    Parts &p = *m_parts;
    return {p.accessibility,
            p.application,
            p.services.dispatch,
            p.events,
            p.hotkeys,
            p.log,
            *p.services.loginItems,
            p.menus,
            p.notifications,
            p.screens,
            p.statusBar,
            p.services.symbols,
            *p.services.defaults,
            p.userNotifications,
            p.windows,
            p.windowInfo,
            p.workspace,
            &p.items,
            p.services.menuBarPreferences};
}

HotkeyRegistry &Desktop::hotkeys()
{
    return m_parts->hotkeys;
}

InputRouter &Desktop::input()
{
    return m_parts->input;
}

Inspection &Desktop::inspection()
{
    return m_parts->inspection;
}

LogWriter &Desktop::log()
{
    return m_parts->log;
}

MenuBar &Desktop::menuBar()
{
    return m_parts->menuBar;
}

MenuHost &Desktop::menus()
{
    return m_parts->menus;
}

Permission &Desktop::permission()
{
    return m_parts->permission;
}

WindowStack &Desktop::windows()
{
    return m_parts->windows;
}

ScriptedLoginItem *Desktop::scriptedLoginItem()
{
    return m_parts->scriptedLoginItem;
}

MemoryDefaults &Desktop::defaults()
{
    return *m_parts->services.defaults;
}

int Desktop::ownPid() const
{
    return m_parts->workspace.processIdentifier();
}

bool Desktop::launch(const ApplicationSpec &application)
{
    if (application.description.pid == ownPid() || !m_parts->applications.launch(application))
        return false;
    m_parts->workspace.notificationCenter().post(kNSWorkspaceDidLaunchApplicationNotification);
    Q_EMIT changed();
    return true;
}

bool Desktop::quit(int pid)
{
    if (!m_parts->applications.quit(pid))
        return false;
    m_parts->workspace.notificationCenter().post(kNSWorkspaceDidTerminateApplicationNotification);
    Q_EMIT changed();
    return true;
}

bool Desktop::change(int pid, const ApplicationSpec &application)
{
    if (!m_parts->applications.change(pid, application))
        return false;
    Q_EMIT changed();
    return true;
}

void Desktop::notify(const QString &application, const QString &what)
{
    m_parts->state.write([&](DisplayState &state) { record(state.messages, u"%1: %2"_s.arg(application, what)); });
    Q_EMIT notified(application, what);
}

void Desktop::setScreens(const std::vector<ScreenDescription> &screens)
{
    m_parts->applyScreens(screens);
    m_parts->notifications.post(kNSApplicationDidChangeScreenParametersNotification);
    Q_EMIT changed();
}

void Desktop::setTrusted(bool trusted)
{
    m_parts->permission.setTrusted(trusted);
}

void Desktop::setMenuBarShowing(bool showing)
{
    m_parts->menuBar.setShowing(showing);
    m_parts->publishBars();
}

void Desktop::setMovesAccepted(bool accepted)
{
    m_parts->menuBar.setMovesAccepted(accepted);
}

} // namespace brimshade::desktop
