#include "TileActions.h"
#include "NotchModel.h"
#include "menubar/Text.h"
#include "platform/ItemServices.h"
#include "platform/Menu.h"
#include "platform/Weakly.h"

#include <QCoreApplication>

namespace brimshade::model {

namespace {

// The model may go before a menu does.
using Model = QPointer<NotchModel>;

platform::MenuItem openEntry(const Model &model, const MenuExtra &extra, const ItemShortcut *shortcut)
{
    platform::MenuItem entry;
    entry.title = QCoreApplication::translate("Tile", "Open");
    if (shortcut)
        entry.shortcut = displayTitle(shortcut->keys);
    entry.action = platform::weakly(
        model, [](NotchModel &self, const MenuExtra &chosen) { self.onSelect(chosen); }, extra);
    return entry;
}

platform::MenuItem activateEntry(const Model &model, const MenuExtra &extra)
{
    platform::MenuItem entry;
    entry.title = QCoreApplication::translate("Tile", "Activate");
    entry.action = platform::weakly(
        model, [](NotchModel &self, const MenuExtra &chosen) { self.onActivate(chosen); }, extra);
    return entry;
}

platform::MenuItem moveEntry(const Model &model, const MenuExtra &extra)
{
    platform::MenuItem entry;
    entry.title = extra.isHidden ? QCoreApplication::translate("Tile", "Show in Menu Bar")
                                 : QCoreApplication::translate("Tile", "Hide from Menu Bar");
    entry.isEnabled = extra.canMove;
    entry.action = platform::weakly(
        model, [](NotchModel &self, const MenuExtra &chosen) { self.onSetHidden(chosen, !chosen.isHidden); }, extra);
    return entry;
}

platform::MenuItem recordEntry(const Model &model, const MenuExtra &extra, const ItemShortcut *shortcut)
{
    platform::MenuItem entry;
    entry.title = shortcut ? QCoreApplication::translate("Tile", "Change Shortcut…")
                           : QCoreApplication::translate("Tile", "Set Shortcut…");
    entry.action = platform::weakly(
        model, [](NotchModel &self, const MenuExtra &chosen) { self.onRecordShortcut(chosen); }, extra);
    return entry;
}

platform::MenuItem removeEntry(const Model &model, const MenuExtra &extra)
{
    platform::MenuItem entry;
    entry.title = QCoreApplication::translate("Tile", "Remove Shortcut");
    entry.action = platform::weakly(
        model, [](NotchModel &self, const MenuExtra &chosen) { self.onRemoveShortcut(chosen); }, extra);
    return entry;
}

} // namespace

TileActions::TileActions(NotchModel &model, platform::Menus &menus, platform::ItemServices *items)
    : m_model(model), m_menus(menus), m_items(items)
{
    if (m_items)
        m_items->observeOffers(platform::weakly(QPointer(this), &TileActions::offersChanged));
}

void TileActions::open(const QString &id)
{
    if (const MenuExtra *found = m_model.extraWithID(id)) {
        const MenuExtra extra = *found; // the callback may replace the list
        m_model.onSelect(extra);
    }
}

void TileActions::popUp(const QString &id, std::optional<QPointF> at)
{
    if (const MenuExtra *extra = m_model.extraWithID(id))
        m_menus.popUpContextMenu(menuOf(*extra), at, [] {});
}

platform::Menu TileActions::menuOf(const MenuExtra &extra) const
{
    const QString identity = m_items ? m_items->identity(extra.element) : QString();
    const ItemShortcut *shortcut = m_model.itemShortcuts().of(identity);
    platform::Menu menu;
    if (m_items && m_items->offer(extra.element).canBeActivated)
        menu.items.push_back(activateEntry(&m_model, extra));
    menu.items.push_back(openEntry(&m_model, extra, shortcut));
    menu.items.push_back(moveEntry(&m_model, extra));
    if (!identity.isEmpty()) {
        menu.items.push_back(platform::MenuItem::separator());
        menu.items.push_back(recordEntry(&m_model, extra, shortcut));
    }
    if (shortcut)
        menu.items.push_back(removeEntry(&m_model, extra));
    return menu;
}

platform::ItemOffer TileActions::offer(const QString &id) const
{
    const MenuExtra *extra = m_items ? m_model.extraWithID(id) : nullptr;
    return extra ? m_items->offer(extra->element) : platform::ItemOffer();
}

void TileActions::activateSecondary(const QString &id)
{
    if (const MenuExtra *extra = m_model.extraWithID(id); extra && m_items)
        m_items->activateSecondary(extra->element);
}

void TileActions::scroll(const QString &id, QPoint by)
{
    if (const MenuExtra *extra = m_model.extraWithID(id); extra && m_items)
        m_items->scroll(extra->element, by);
}

void TileActions::pointerEntered(const QString &id)
{
    m_model.setHoveredID(id);
}

void TileActions::pointerLeft(const QString &id)
{
    if (menubar::isSameText(m_model.hoveredID(), id))
        m_model.setHoveredID({});
}

} // namespace brimshade::model
