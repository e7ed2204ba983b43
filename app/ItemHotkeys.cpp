#include "ItemHotkeys.h"

#include "PanelPresenter.h"
#include "ScanScheduler.h"
#include "controls/Hotkeys.h"
#include "model/NotchModel.h"
#include "platform/ItemServices.h"
#include "platform/Log.h"
#include "platform/UserNotifications.h"
#include "platform/Weakly.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::app {

using model::ItemShortcut;
using platform::weakly;

namespace {

// The same at every launch, and never one of the few numbers that the program uses for itself.
std::uint32_t numberOf(const QString &item)
{
    const QByteArray hash = QCryptographicHash::hash(item.toUtf8(), QCryptographicHash::Sha1);
    return qFromBigEndian<std::uint32_t>(hash.constData()) | 0x8000'0000;
}

} // namespace

ItemHotkeys::ItemHotkeys(const platform::Platform &platform, Parts parts)
    : m_platform(platform), m_parts(std::move(parts))
{
}

void ItemHotkeys::registerKept()
{
    for (const ItemShortcut &shortcut : m_parts.model->itemShortcuts().all()) {
        if (!registerOne(shortcut))
            m_platform.log.write(platform::LogLevel::error, "shortcut of %{public}s refused", {shortcut.name});
    }
}

std::expected<void, QString> ItemHotkeys::assign(const ItemShortcut &shortcut)
{
    const ItemShortcut *other = m_parts.model->itemShortcuts().with(shortcut.keys);
    if ((other && other->item != shortcut.item) || !registerOne(shortcut))
        return std::unexpected(whoHas(shortcut.keys, shortcut.item));
    m_parts.model->itemShortcuts().set(shortcut);
    return {};
}

void ItemHotkeys::remove(const QString &item)
{
    m_parts.hotkeys->clear(numberOf(item));
    m_parts.model->itemShortcuts().remove(item);
}

void ItemHotkeys::removeOf(const menubar::MenuExtra &extra)
{
    if (m_platform.itemServices)
        remove(m_platform.itemServices->identity(extra.element));
}

QString ItemHotkeys::whoHas(const model::KeyCombination &keys, const QString &item) const
{
    const QString title = displayTitle(keys);
    if (const ItemShortcut *other = m_parts.model->itemShortcuts().with(keys); other && other->item != item)
        return tr("%1 already opens the menu of %2.").arg(title, other->name);
    if (!item.isEmpty() && keyCombination(m_parts.model->shortcut()) == keys)
        return tr("%1 already opens Brimshade.").arg(title);
    return tr("%1 already belongs to another program.").arg(title);
}

bool ItemHotkeys::registerOne(const ItemShortcut &shortcut)
{
    return m_parts.hotkeys->set(numberOf(shortcut.item), shortcut.keys, tr("Open the menu of %1").arg(shortcut.name),
                                weakly(weak_from_this(), &ItemHotkeys::open, shortcut.item));
}

void ItemHotkeys::open(const QString &item) const
{
    const auto openFound = [item](const ItemHotkeys &self, const menubar::ExtraList &extras) {
        const ItemShortcut *shortcut = self.m_parts.model->itemShortcuts().of(item);
        const auto found = std::ranges::find_if(extras, [&](const menubar::MenuExtra &extra) {
            return self.m_platform.itemServices->identity(extra.element) == item;
        });
        if (found != extras.end())
            self.m_parts.panel->select(*found);
        else if (!self.m_parts.model->trusted())
            self.m_parts.panel->present(); // it asks for the permission
        else if (shortcut)
            self.m_platform.userNotifications.add(shortcut->name, tr("It is not running."));
    };
    if (m_platform.itemServices)
        m_parts.scans->scanFor(weakly(weak_from_this(), openFound));
}

} // namespace brimshade::app
