#include "ItemShortcuts.h"
#include "platform/UserDefaults.h"

#include <QVariantMap>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace brimshade::model {

namespace {

const QString kKey = u"itemShortcuts"_s;
const QString kItem = u"item"_s, kName = u"name"_s, kKeyCode = u"keyCode"_s, kModifiers = u"modifiers"_s;

std::uint32_t readNumber(const QVariant &value)
{
    const double number = value.toDouble();
    const bool fits = number >= 0 && number <= std::numeric_limits<std::uint16_t>::max();
    return fits ? static_cast<std::uint32_t>(number) : std::numeric_limits<std::uint32_t>::max();
}

// Drops whatever the recorder could not have written.
std::optional<ItemShortcut> readShortcut(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    const ItemShortcut shortcut{map.value(kItem).toString(),
                                map.value(kName).toString(),
                                {readNumber(map.value(kKeyCode)), readNumber(map.value(kModifiers))}};
    const bool isGood = !shortcut.item.isEmpty() && shortcut.item.size() <= ItemShortcuts::kLongestText
        && shortcut.name.size() <= ItemShortcuts::kLongestText && map.contains(kKeyCode) && canBeGlobal(shortcut.keys);
    return isGood ? std::optional(shortcut) : std::nullopt;
}

} // namespace

ItemShortcuts::ItemShortcuts(platform::UserDefaults &defaults) : m_defaults(defaults)
{
    read();
}

const ItemShortcut *ItemShortcuts::of(const QString &item) const
{
    const auto found = std::ranges::find(m_all, item, &ItemShortcut::item);
    return found == m_all.end() ? nullptr : &*found;
}

const ItemShortcut *ItemShortcuts::with(const KeyCombination &keys) const
{
    const auto found = std::ranges::find(m_all, keys, &ItemShortcut::keys);
    return found == m_all.end() ? nullptr : &*found;
}

void ItemShortcuts::set(const ItemShortcut &shortcut)
{
    std::erase_if(m_all, [&](const ItemShortcut &each) { return each.item == shortcut.item; });
    if (m_all.size() == kMost)
        m_all.erase(m_all.begin());
    m_all.push_back({shortcut.item.left(kLongestText), shortcut.name.left(kLongestText), shortcut.keys});
    write();
}

void ItemShortcuts::remove(const QString &item)
{
    if (std::erase_if(m_all, [&](const ItemShortcut &each) { return each.item == item; }) > 0)
        write();
}

void ItemShortcuts::read()
{
    for (const QVariant &value : m_defaults.objectForKey(kKey).toList()) {
        const auto shortcut = readShortcut(value);
        if (shortcut && m_all.size() < kMost && !of(shortcut->item) && !with(shortcut->keys))
            m_all.push_back(*shortcut);
    }
}

void ItemShortcuts::write() const
{
    QVariantList list;
    for (const ItemShortcut &each : m_all)
        list.append(QVariantMap{{kItem, each.item},
                                {kName, each.name},
                                {kKeyCode, qlonglong(each.keys.keyCode)},
                                {kModifiers, qlonglong(each.keys.modifiers)}});
    m_defaults.setArray(list, kKey);
}

} // namespace brimshade::model
