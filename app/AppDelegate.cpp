#include "AppDelegate.h"

#include "ItemHotkeys.h"
#include "ItemMoves.h"
#include "ItemName.h"
#include "PanelPlacement.h"
#include "PanelPresenter.h"
#include "ScanQueue.h"
#include "SecondaryWindows.h"
#include "StatusMenu.h"
#include "controls/Divider.h"
#include "controls/Hotkeys.h"
#include "controls/HoverZone.h"
#include "menubar/MenuBarAccess.h"
#include "menubar/NotchGeometry.h"
#include "model/NotchModel.h"
#include "model/ShortcutRecorder.h"
#include "platform/Accessibility.h"
#include "platform/Dispatch.h"
#include "platform/ItemServices.h"
#include "platform/NotificationCenter.h"
#include "platform/StatusBar.h"
#include "platform/Symbol.h"
#include "platform/UserDefaults.h"
#include "platform/Weakly.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace brimshade::app {

using platform::weakly;

namespace {

constexpr std::uint32_t kPanelHotkey = 1;
constexpr qlonglong kFirstPosition = 5; // right of every other item that can move
constexpr double kSettled = 1; // seconds after the launch, when what that showed has come to rest

} // namespace

AppDelegate::AppDelegate(const platform::Platform &platform)
    : m_platform(platform), m_model(std::make_shared<model::NotchModel>(platform.userDefaults, platform.loginItems)),
      m_access(std::make_shared<menubar::MenuBarAccess>(platform)),
      m_scanQueue(std::make_shared<ScanQueue>(
          platform.dispatch.makeSerialQueue(u"brimshade.scan"_s, platform::QualityOfService::userInitiated))),
      m_placement(std::make_shared<PanelPlacement>(platform.screens, platform.application)),
      m_hoverZone(std::make_shared<controls::HoverZone>(platform)),
      m_hotkeys(std::make_shared<controls::Hotkeys>(platform.hotkeyCenter))
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    createStatusItem();
    createDivider();
    createParts();
    configureButton();
    installCallbacks();
    applySettings();
    // Again on a later turn, when the status item has its window. Held strongly: it must run whoever lets go of this.
    m_platform.dispatch.mainAsync([self = shared_from_this()] { self->m_divider->reanchor(); });
    m_platform.notificationCenter.addObserver(
        QString::fromLatin1(platform::kNSApplicationDidChangeScreenParametersNotification), nullptr,
        weakly(weak_from_this(), &AppDelegate::screensChanged));
    welcome();
    m_platform.dispatch.mainAfter(kSettled, weakly(std::weak_ptr(m_panel), &PanelPresenter::prepare));
}

void AppDelegate::createStatusItem()
{
    // Stored before the item exists, so that its first place is ours to choose and every later one the user's.
    const QString position = u"NSStatusItem Preferred Position BrimshadeButton"_s;
    if (!m_platform.userDefaults.objectForKey(position).isValid())
        m_platform.userDefaults.setInteger(kFirstPosition, position);
    m_statusItem = m_platform.statusBar.createStatusItem(platform::kSquareStatusItemLength);
    m_statusItem->setAutosaveName(u"BrimshadeButton"_s);
}

void AppDelegate::createDivider()
{
    const platform::Image symbol = m_platform.symbols.symbolImage(u"rectangle.topthird.inset.filled"_s, u"Brimshade"_s,
                                                                  {14, platform::SymbolWeight::semibold});
    m_divider = controls::Divider::create(m_platform, m_access, m_statusItem, symbol);
    m_divider->setEnabled(m_model->dividerEnabled());
}

void AppDelegate::createParts()
{
    const ScanScheduler::Parts parts{m_model, m_access, m_scanQueue, m_placement, m_divider};
    m_scans = std::make_shared<ScanScheduler>(m_platform, parts);
    m_panel = std::make_shared<PanelPresenter>(m_platform, parts, m_scans, m_statusItem);
    const auto finish = [](AppDelegate &self, const ItemChoices &choices) { self.m_moves->finishOnboarding(choices); };
    m_windows =
        std::make_shared<SecondaryWindows>(m_platform, m_model, m_panel, m_scans, weakly(weak_from_this(), finish));
    m_itemHotkeys = std::make_shared<ItemHotkeys>(m_platform, ItemHotkeys::Parts{m_model, m_hotkeys, m_scans, m_panel});
    m_moves = std::make_shared<ItemMoves>(m_platform, parts, m_scans, m_panel, m_windows);
    m_statusMenu =
        std::make_shared<StatusMenu>(m_platform, StatusMenu::Parts{m_model, m_statusItem, m_panel, m_windows, m_scans});
}

void AppDelegate::configureButton()
{
    platform::StatusBarButton *button = m_statusItem->button();
    if (!button)
        return;
    button->setAccessibilityLabel(u"Brimshade"_s);
    button->setAction(platform::kLeftMouseUpMask | platform::kRightMouseUpMask,
                      weakly(std::weak_ptr(m_statusMenu), &StatusMenu::clicked));
}

void AppDelegate::installCallbacks()
{
    const std::weak_ptr panel = m_panel;
    const std::weak_ptr windows = m_windows;
    m_model->onSelect = weakly(panel, &PanelPresenter::select);
    m_model->onActivate = weakly(panel, &PanelPresenter::activate);
    m_model->onDismiss = weakly(panel, &PanelPresenter::close);
    m_model->onSetHidden = weakly(std::weak_ptr(m_moves), &ItemMoves::setHidden);
    m_model->onOpenSettings = weakly(windows, &SecondaryWindows::openSettings);
    m_model->onSettingsChanged = weakly(weak_from_this(), &AppDelegate::applySettings);
    m_model->onRefresh = weakly(std::weak_ptr(m_scans), &ScanScheduler::scan);
    m_model->onShowOnboarding = weakly(windows, &SecondaryWindows::showOnboarding);
    if (m_platform.itemServices)
        m_platform.itemServices->observeItems(weakly(panel, &PanelPresenter::itemsChanged));
    m_hoverZone->setOnHover(weakly(panel, &PanelPresenter::hovered));
    installShortcutCallbacks();
}

void AppDelegate::installShortcutCallbacks()
{
    const std::weak_ptr hotkeys = m_itemHotkeys;
    m_model->onRecordShortcut = weakly(std::weak_ptr(m_panel), &PanelPresenter::record);
    m_model->onRemoveShortcut = weakly(hotkeys, &ItemHotkeys::removeOf);
    m_panel->recorder().onAssign = [hotkeys](const model::ItemShortcut &shortcut) {
        const auto self = hotkeys.lock();
        return self ? self->assign(shortcut) : model::ShortcutRecorder::Assigned();
    };
    m_panel->recorder().onRemove = weakly(hotkeys, &ItemHotkeys::remove);
}

void AppDelegate::applySettings()
{
    if (m_divider->isEnabled() != m_model->dividerEnabled())
        m_divider->setEnabled(m_model->dividerEnabled());
    applyShortcut();
    m_itemHotkeys->registerKept();
    m_hoverZone->update(m_model->hoverToOpen(), menubar::notchedScreen(m_platform.screens.screens()));
}

// Before the shortcuts of items are registered: where one of them has the same keys, the panel's wins.
void AppDelegate::applyShortcut()
{
    const auto keys = keyCombination(m_model->shortcut());
    const bool works = keys
        && m_hotkeys->set(kPanelHotkey, *keys, QCoreApplication::translate("AppDelegate", "Open or close Brimshade"),
                          weakly(std::weak_ptr(m_panel), &PanelPresenter::toggle));
    if (!works)
        m_hotkeys->clear(kPanelHotkey);
    if (keys && !works && std::exchange(m_refused, keys) != keys)
        m_model->setMessage(m_itemHotkeys->whoHas(*keys, {}));
    if (works)
        m_refused.reset();
}

void AppDelegate::screensChanged()
{
    m_panel->close();
    applySettings();
    m_divider->reanchor();
}

void AppDelegate::welcome()
{
    if (!m_platform.userDefaults.boolForKey(u"onboardingDone"_s))
        m_windows->showOnboarding();
    else if (!m_platform.accessibility.isProcessTrusted())
        m_platform.accessibility.isProcessTrustedWithOptions(true);
}

void AppDelegate::openPanel()
{
    m_panel->present();
}

void AppDelegate::togglePanel()
{
    m_panel->toggle();
}

void AppDelegate::openSettings()
{
    m_windows->openSettings();
}

void AppDelegate::listItems(std::function<void(const menubar::ExtraList &)> then)
{
    m_scans->scanFor(std::move(then));
}

void AppDelegate::openItem(const QString &name, const std::function<void(const std::expected<void, QString> &)> &then)
{
    const auto open = [name, then](AppDelegate &self, const menubar::ExtraList &extras) {
        const auto found = itemNamed(name, extras);
        if (!found)
            return then(std::unexpected(found.error()));
        self.m_panel->select(**found);
        then({});
    };
    m_scans->scanFor(weakly(weak_from_this(), open));
}

bool AppDelegate::shown() const
{
    return m_panel && m_panel->shown();
}

} // namespace brimshade::app
