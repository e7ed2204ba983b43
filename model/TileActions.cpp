#include "TileActions.h"
#include "NotchModel.h"
#include "menubar/Text.h"
#include "platform/ItemServices.h"
#include "platform/Menu.h"
#include "platform/Weakly.h"

#include <QCoreApplication>

namespace brimshade::model {

namespace {

// The model may be gone before a menu is.
using Model = QPointer<NotchModel>;

platform::MenuItem openEntry(const Model &model, const MenuExtra &extra)
{
    platform::MenuItem entry;
    entry.title = QCoreApplication::translate("Tile", "Open");
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

void TileActions::showMenu(const QString &id)
{
    const MenuExtra *extra = m_model.extraWithID(id);
    if (!extra)
        return;
    platform::Menu menu{{openEntry(&m_model, *extra), moveEntry(&m_model, *extra)}};
    if (offer(id).canBeActivated)
        menu.items.insert(menu.items.begin(), activateEntry(&m_model, *extra));
    m_menus.popUpContextMenu(menu, [] {});
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
