#include "PanelPresenter.h"

#include "ItemName.h"
#include "NotchPanel.h"
#include "PanelPlacement.h"
#include "menubar/MenuBarAccess.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "model/ShortcutRecorder.h"
#include "model/TileActions.h"
#include "platform/Accessibility.h"
#include "platform/Dispatch.h"
#include "platform/ItemServices.h"
#include "platform/Log.h"
#include "platform/MenuBarPreferences.h"
#include "platform/Platform.h"
#include "platform/StatusBar.h"
#include "platform/Weakly.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace brimshade::app {

using platform::LogLevel;
using platform::weakly;

namespace {

constexpr double kOrderOutDelay = 0.35; // the views' closing animation
constexpr double kSelectDelay = 0.22;
constexpr double kItemsDelay = 0.15; // the bar needs 0.1 s to settle, and changes come in bursts
constexpr double kWatchInterval = 0.25;
constexpr double kAwayLimit = 2.5;
constexpr double kClockRounding = 1e-6; // error of a difference of two clock readings
constexpr double kZoneMargin = 8;

QString describe(const QRectF &r)
{
    const auto number = [](double value) { return QString::number(value, 'g', QLocale::FloatingPointShortest); };
    return u"{{%1, %2}, {%3, %4}}"_s.arg(number(r.x()), number(r.y()), number(r.width()), number(r.height()));
}

} // namespace

PanelPresenter::PanelPresenter(const platform::Platform &platform, const ScanScheduler::Parts &parts,
                               std::shared_ptr<ScanScheduler> scans, std::shared_ptr<platform::StatusItem> statusItem)
    : m_platform(platform), m_model(parts.model), m_access(parts.access), m_placement(parts.placement),
      m_scans(std::move(scans)), m_statusItem(std::move(statusItem)),
      m_tileActions(std::make_unique<model::TileActions>(*m_model, platform.menus, platform.itemServices)),
      m_permission(std::make_unique<model::PermissionRequest>(platform.accessibility, platform.workspace)),
      m_recorder(std::make_unique<model::ShortcutRecorder>(*m_model, platform.hotkeyCenter, platform.dispatch)),
      m_keys(*m_model, [this] { close(); }), m_monitors(platform.application)
{
    m_tileActions->toScreen = [this](QPointF inPanel) { return toScreen(inPanel); };
}

PanelPresenter::~PanelPresenter() = default;

QPointF PanelPresenter::toScreen(QPointF inPanel) const
{
    const QRectF frame = m_panel ? m_panel->frame() : QRectF();
    return {frame.x() + inPanel.x(), platform::maxY(frame) - inPanel.y()};
}

void PanelPresenter::prepare()
{
    panel();
}

void PanelPresenter::open(bool byHover)
{
    if (const QString moving = m_model->movingID(); !moving.isEmpty()) {
        m_platform.log.write(LogLevel::error, "open refused: moving %s", {moving});
        return;
    }
    m_placement->chooseScreen();
    prepareModel();
    placePanel();
    logOpening(byHover);
    show(byHover);
    // On a later turn, so that the views see a closed panel on screen first. Held strongly: it must run.
    m_platform.dispatch.mainAsync([self = shared_from_this()] {
        if (self->m_shown)
            self->m_model->setIsOpen(true);
    });
    m_scans->scan();
    installMonitors();
}

void PanelPresenter::present()
{
    const bool wasOpenedByHover = m_pointerWatch != nullptr;
    stopPointerWatch();
    if (!m_shown || wasOpenedByHover)
        open(false);
}

void PanelPresenter::prepareModel()
{
    m_model->setNotch(m_placement->notchSize());
    m_model->setTrusted(m_platform.accessibility.isProcessTrusted());
    m_model->resetSearch();
}

void PanelPresenter::placePanel()
{
    panel().setFrame(m_placement->panelFrame());
}

void PanelPresenter::logOpening(bool byHover) const
{
    m_platform.log.write(LogLevel::info, "open byHover %{bool}d on %{public}s panel %{public}s",
                         {byHover, m_placement->screen().localizedName, describe(m_panel->frame())});
}

void PanelPresenter::show(bool byHover)
{
    if (m_orderOut)
        m_orderOut->cancel();
    if (byHover)
        panel().orderFrontRegardless();
    else
        panel().makeKeyAndOrderFront();
    m_shown = true;
}

void PanelPresenter::close()
{
    stopPointerWatch();
    if (!m_shown)
        return;
    m_platform.log.write(LogLevel::info, "close", {});
    m_shown = false;
    m_recorder->end();
    m_model->setIsOpen(false);
    m_model->setHoveredID({});
    m_monitors.removeAll();
    m_orderOut = std::make_shared<platform::DispatchWorkItem>(weakly(weak_from_this(), &PanelPresenter::orderOut));
    m_platform.dispatch.mainAfter(kOrderOutDelay, [orderOut = m_orderOut] { orderOut->perform(); });
}

void PanelPresenter::orderOut()
{
    panel().orderOut();
}

void PanelPresenter::toggle()
{
    if (m_shown)
        close();
    else
        open(false);
}

void PanelPresenter::select(const menubar::MenuExtra &extra)
{
    const double delay = m_shown ? kSelectDelay : 0;
    close();
    m_platform.dispatch.mainAfter(delay, weakly(std::weak_ptr(m_access), &menubar::MenuBarAccess::activate, extra));
}

void PanelPresenter::activate(const menubar::MenuExtra &extra)
{
    close();
    m_platform.dispatch.mainAfter(kSelectDelay, [items = m_platform.itemServices, element = extra.element] {
        if (items)
            items->activate(element);
    });
}

void PanelPresenter::record(const menubar::MenuExtra &extra)
{
    const QString identity = m_platform.itemServices ? m_platform.itemServices->identity(extra.element) : QString();
    if (identity.isEmpty()) // the item has gone
        return;
    present();
    if (!m_shown)
        return;
    const QString name = nameToAskWith(extra, m_model->extras());
    const platform::MenuBarPreferences *bar = m_platform.menuBarPreferences;
    m_recorder->begin(identity, name, bar ? bar->itemShortcutAdvice(name) : QString());
}

void PanelPresenter::itemsChanged()
{
    if (!m_shown || std::exchange(m_isScanDue, true))
        return;
    const auto scan = [](PanelPresenter &self) {
        self.m_isScanDue = false;
        if (self.m_shown)
            self.m_scans->scan();
    };
    m_platform.dispatch.mainAfter(kItemsDelay, weakly(weak_from_this(), scan));
}

void PanelPresenter::hovered()
{
    m_platform.log.write(LogLevel::info, "hover on notch, open %{bool}d", {m_model->isOpen()});
    if (m_shown)
        return;
    open(true);
    startPointerWatch();
}

void PanelPresenter::installMonitors()
{
    m_monitors.removeAll();
    m_monitors.addGlobal(platform::kLeftMouseDownMask | platform::kRightMouseDownMask,
                         weakly(weak_from_this(), &PanelPresenter::handleOutsideClick));
    m_monitors.addLocal(platform::kKeyDownMask, [weak = weak_from_this()](const platform::Event &event) {
        const auto self = weak.lock();
        return self ? self->handleKey(event) : event;
    });
}

void PanelPresenter::handleOutsideClick(const platform::Event &)
{
    // A click on the status item is left to the item's own action.
    platform::StatusBarButton *button = m_statusItem->button();
    platform::Window *window = button ? button->window() : nullptr;
    if (window && platform::containsPoint(window->frame(), m_platform.application.mouseLocation()))
        return;
    close();
}

std::optional<platform::Event> PanelPresenter::handleKey(const platform::Event &event)
{
    if (!m_shown)
        return event;
    m_platform.log.write(LogLevel::info, "key %hu query '%{public}s'", {int(event.keyCode), m_model->query()});
    if (!m_model->isRecording())
        return m_keys.handle(event);
    m_recorder->handle(event);
    return {};
}

void PanelPresenter::startPointerWatch()
{
    m_awaySince.reset();
    m_pointerWatch =
        m_platform.dispatch.scheduleRepeating(kWatchInterval, weakly(weak_from_this(), &PanelPresenter::watchPointer));
}

void PanelPresenter::stopPointerWatch()
{
    m_pointerWatch.reset();
}

void PanelPresenter::watchPointer()
{
    if (!m_shown) {
        stopPointerWatch();
        return;
    }
    const double now = m_platform.dispatch.now();
    if (isPointerInside())
        m_awaySince.reset();
    else if (!m_awaySince)
        m_awaySince = now;
    else if (now - *m_awaySince >= kAwayLimit - kClockRounding)
        close();
}

bool PanelPresenter::isPointerInside() const
{
    const QSizeF size = m_model->panelSize();
    const QRectF visible(platform::midX(m_panel->frame()) - size.width() / 2,
                         platform::maxY(m_placement->screen().frame) - size.height(), size.width(), size.height());
    const QRectF zone = visible.adjusted(-kZoneMargin, -kZoneMargin, kZoneMargin, kZoneMargin);
    return platform::containsPoint(zone, m_platform.application.mouseLocation());
}

platform::Window &PanelPresenter::panel()
{
    if (!m_panel) {
        m_panel = m_platform.windows.createWindow(
            notchPanelAttributes(),
            platform::HostedView{u"Brimshade.Panel"_s,
                                 u"NotchRoot"_s,
                                 {{u"model"_s, QVariant::fromValue(m_model.get())},
                                  {u"actions"_s, QVariant::fromValue(m_tileActions.get())},
                                  {u"permission"_s, QVariant::fromValue(m_permission.get())},
                                  {u"recorder"_s, QVariant::fromValue(m_recorder.get())}}});
    }
    return *m_panel;
}

} // namespace brimshade::app
