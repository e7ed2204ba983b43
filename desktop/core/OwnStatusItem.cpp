#include "OwnStatusItem.h"
#include "MenuBar.h"
#include "MenuHost.h"
#include "Notifications.h"
#include "ProgramApplication.h"
#include "ScreenGeometry.h"
#include "platform/UserDefaults.h"

#include <algorithm>
#include <cmath>

using namespace brimshade::platform;
using namespace Qt::StringLiterals;

namespace brimshade::desktop {

QRectF StatusItemWindow::frame() const
{
    return flipped(m_entry.frame.value_or(QRectF()), m_state.primaryHeight());
}

std::optional<Screen> StatusItemWindow::screen() const
{
    return m_state.read([&, rect = frame()](const DisplayState &state) { return screenHolding(state.screens, rect); });
}

bool StatusItemWindow::occlusionStateVisible() const
{
    return m_bar.isDrawn(m_entry);
}

OwnStatusItem::OwnStatusItem(StatusBarService &bar, double length)
    : m_bar(&bar), m_entry(std::make_shared<BarEntry>()), m_window(bar.m_parts.state, bar.m_parts.menuBar, *m_entry),
      m_length(length)
{
    m_entry->pid = bar.m_parts.pid;
    m_entry->place = BarEntry::Place::own;
    // It has a place as soon as it exists, so that it can be measured and clicked.
    bar.m_parts.menuBar.settleNow([&] {
        takeWidth();
        bar.m_parts.menuBar.add(m_entry);
    });
}

OwnStatusItem::~OwnStatusItem()
{
    if (!m_bar)
        return;
    std::erase(m_bar->m_items, this);
    m_bar->m_parts.menuBar.remove(m_entry);
}

void OwnStatusItem::takeWidth()
{
    if (!m_bar)
        return;
    const bool isSquare = m_length == kSquareStatusItemLength;
    m_entry->width = isSquare ? m_bar->m_parts.menuBar.frame().height() : std::max(m_length, 0.);
    m_bar->m_parts.menuBar.widthChanged();
}

void OwnStatusItem::setLength(double length)
{
    m_length = length;
    takeWidth();
}

QString OwnStatusItem::placeKey() const
{
    return u"NSStatusItem Preferred Position "_s + m_autosaveName;
}

void OwnStatusItem::setAutosaveName(const QString &name)
{
    m_autosaveName = name;
    m_entry->identifier = name;
    if (!m_bar)
        return;
    bool isNumber = false;
    const double points = m_bar->m_parts.defaults.objectForKey(placeKey()).toDouble(&isNumber);
    if (isNumber && std::isfinite(points))
        m_bar->m_parts.menuBar.settleNow([&] { m_bar->m_parts.menuBar.placeOwn(m_entry, points); });
}

void OwnStatusItem::storePlace()
{
    if (m_bar && !m_autosaveName.isEmpty())
        m_bar->m_parts.defaults.setInteger(std::llround(m_bar->m_parts.menuBar.pointsFromRight(*m_entry)), placeKey());
}

void OwnStatusItem::setImage(const Image &image)
{
    m_entry->image = image;
    if (m_bar)
        m_bar->m_parts.menuBar.lookChanged();
}

void OwnStatusItem::setAccessibilityLabel(const QString &label)
{
    m_entry->title = label;
    if (m_bar)
        m_bar->m_parts.menuBar.lookChanged();
}

void OwnStatusItem::setAction(EventMask sendOn, Work action)
{
    m_sendOn = sendOn;
    m_action = std::move(action);
}

void OwnStatusItem::performClick(Work dismissed)
{
    if (m_menu) {
        openMenu(std::move(dismissed));
        return;
    }
    if (m_action)
        m_action();
    if (dismissed)
        dismissed();
}

void OwnStatusItem::openMenu(Work dismissed)
{
    if (m_bar)
        m_bar->m_parts.menus.open(makeMenuSource(*m_menu), m_entry->frame.value_or(QRectF()), std::move(dismissed));
}

void OwnStatusItem::pressed(NSEventType type)
{
    if (m_menu) {
        openMenu({});
        return;
    }
    m_entry->isPressed = true;
    m_bar->m_parts.menuBar.lookChanged();
    send(type);
}

void OwnStatusItem::released(NSEventType type, bool isInside)
{
    if (!std::exchange(m_entry->isPressed, false))
        return;
    m_bar->m_parts.menuBar.lookChanged();
    if (isInside)
        send(type);
}

void OwnStatusItem::send(NSEventType type)
{
    if (!m_action || !(m_sendOn & (EventMask(1) << type)))
        return;
    const ProgramApplication::Handling handling(m_bar->m_parts.application, type);
    const Work action = m_action; // running it may replace m_action
    action();
}

// An item has left its screen when it no longer finds room or is shown on another screen, and also when it finds room
// only because others made way.
void OwnStatusItem::barSettled()
{
    const auto screen = m_window.screen();
    if (!screen || !m_bar->m_parts.menuBar.isShowing())
        return;
    const auto before = std::exchange(m_screen, screen->localizedName);
    const bool wasDrawn = std::exchange(m_isDrawn, m_bar->m_parts.menuBar.isDrawn(*m_entry));
    const bool wasCrowded = std::exchange(m_isCrowded, m_bar->m_parts.menuBar.isCrowded());
    if ((before && before != m_screen) || (wasDrawn && !m_isDrawn) || (!wasCrowded && m_isCrowded))
        m_bar->m_parts.notifications.post(kNSWindowDidChangeScreenNotification, static_cast<Window *>(&m_window));
}

} // namespace brimshade::desktop
