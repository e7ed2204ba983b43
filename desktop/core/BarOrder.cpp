#include "BarOrder.h"
#include "BarLayout.h"

#include <algorithm>

namespace brimshade::desktop {

using Place = BarEntry::Place;

namespace {

bool isOwn(const BarEntryPointer &entry)
{
    return entry->place == Place::own;
}

bool isKept(const BarEntryPointer &entry)
{
    return entry->kept.has_value();
}

} // namespace

std::size_t BarOrder::pinnedCount() const
{
    return std::ranges::count(m_laidOut, Place::pinned, &BarEntry::place);
}

BarEntries::iterator BarOrder::find(const KeptOrder::Slot &slot)
{
    return std::ranges::find_if(m_laidOut, [&slot](const BarEntryPointer &entry) {
        return (isOwn(entry) || isKept(entry)) && entry->kept == slot;
    });
}

std::vector<KeptOrder::Slot> BarOrder::slots() const
{
    std::vector<KeptOrder::Slot> slots;
    for (const auto &entry : m_laidOut) {
        if (isOwn(entry) || isKept(entry))
            slots.push_back(entry->kept);
    }
    return slots;
}

void BarOrder::add(const BarEntryPointer &entry)
{
    if (entry->place == Place::fixed) {
        m_fixed.push_back(entry);
    } else if (isKept(entry)) {
        entry->kept = m_kept.arrive(*entry->kept);
        insertKept(entry);
    } else if (entry->place == Place::movable) {
        m_laidOut.push_back(entry);
    } else {
        m_laidOut.insert(m_laidOut.begin() + static_cast<std::ptrdiff_t>(pinnedCount()), entry);
        if (isOwn(entry))
            arrange(takeKept());
    }
}

void BarOrder::remove(const BarEntryPointer &entry)
{
    if (std::erase(m_laidOut, entry) > 0 && isKept(entry))
        m_kept.leave(*entry->kept);
    std::erase(m_fixed, entry);
}

bool BarOrder::rename(const BarEntryPointer &entry, const KeptItem &who)
{
    const KeptItem before = *entry->kept;
    entry->kept = m_kept.rename(before, who);
    if (*entry->kept == before)
        return false;
    if (!isAsKept() && std::erase(m_laidOut, entry) > 0)
        insertKept(entry);
    return true;
}

void BarOrder::restore(KeptOrder kept)
{
    m_kept.restore(std::move(kept));
    arrange(takeKept());
}

bool BarOrder::isAsKept() const
{
    auto next = m_kept.records().begin();
    return std::ranges::all_of(slots(), [&](const KeptOrder::Slot &slot) {
        next = std::ranges::find(next, m_kept.records().end(), slot, &KeptOrder::Record::slot);
        return next != m_kept.records().end();
    });
}

BarEntries BarOrder::takeKept()
{
    BarEntries kept;
    std::ranges::copy_if(m_laidOut, std::back_inserter(kept), isKept);
    std::erase_if(m_laidOut, isKept);
    return kept;
}

void BarOrder::arrange(const BarEntries &kept)
{
    for (const auto &entry : kept)
        insertKept(entry);
}

// Puts it beside its nearest neighbour in the kept order, the one on the right if there is one.
void BarOrder::insertKept(const BarEntryPointer &entry)
{
    const auto &records = m_kept.records();
    const auto own = std::ranges::find(records, entry->kept, &KeptOrder::Record::slot);
    for (auto right = own; right != records.begin();) {
        if (const auto at = find((--right)->slot); at != m_laidOut.end()) {
            m_laidOut.insert(std::next(at), entry);
            return;
        }
    }
    auto at = m_laidOut.end();
    for (auto left = std::next(own); at == m_laidOut.end() && left != records.end(); ++left)
        at = find(left->slot);
    m_laidOut.insert(at, entry);
}

BarEntries BarOrder::shown(double room) const
{
    return withoutCrowded(m_laidOut, room);
}

bool BarOrder::drop(const BarEntryPointer &entry, std::size_t index, double room)
{
    if (entry->place == Place::pinned || std::ranges::find(m_laidOut, entry) == m_laidOut.end())
        return false;
    const BarEntries before = shown(room);
    BarEntries order = before;
    std::erase(order, entry);
    const std::size_t to = std::clamp(index, pinnedCount(), order.size());
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(to), entry);
    if (order == before)
        return false;
    if (!isOwn(entry))
        takeIn(order, crowdedOthers(entry, room));
    makeRoomFor(entry, order, room);
    if (withoutCrowded(order, room) == before)
        return false;
    m_laidOut = std::move(order);
    if (isOwn(entry) || isKept(entry))
        m_kept.move(entry->kept, slots());
    return true;
}

// Items that stand left of our own one only for want of room. Not the dropped one: it goes where it was dropped.
BarEntries BarOrder::crowdedOthers(const BarEntryPointer &dropped, double room) const
{
    BarEntries crowded = crowdedOut(m_laidOut, room);
    std::erase(crowded, dropped);
    return crowded;
}

void BarOrder::placeOwn(const BarEntryPointer &own, double points)
{
    const BarEntries kept = takeKept();
    std::vector<double> pinned, listed;
    std::erase(m_laidOut, own);
    for (const auto &entry : m_laidOut)
        (entry->place == Place::pinned ? pinned : listed).push_back(takenBy(*entry));
    const auto index = pinned.size() + preferredIndex(pinned, listed, points);
    m_laidOut.insert(m_laidOut.begin() + static_cast<std::ptrdiff_t>(index), own);
    arrange(kept);
}

} // namespace brimshade::desktop
