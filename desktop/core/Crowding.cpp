#include "Crowding.h"

#include <algorithm>

namespace brimshade::desktop {

namespace {

using Place = BarEntry::Place;

bool contains(const BarEntries &entries, const BarEntryPointer &entry)
{
    return std::ranges::find(entries, entry) != entries.end();
}

void removeAll(BarEntries &entries, const BarEntries &gone)
{
    std::erase_if(entries, [&gone](const BarEntryPointer &entry) { return contains(gone, entry); });
}

bool mayMakeWay(const BarEntry &entry)
{
    return entry.kept && !entry.isAway;
}

} // namespace

double takenBy(const BarEntry &entry)
{
    return entry.isAway ? 0 : entry.width;
}

BarEntries crowdedOut(const BarEntries &order, double room)
{
    const auto own = std::ranges::find(order, Place::own, &BarEntry::place);
    if (own == order.end())
        return {};
    double filled = takenBy(**own);
    for (auto entry = order.begin(); entry != own; ++entry)
        filled += takenBy(**entry);
    BarEntries crowded;
    for (auto entry = own; filled > room && entry != order.begin();) {
        if (!mayMakeWay(**--entry))
            continue;
        filled -= takenBy(**entry);
        crowded.insert(crowded.begin(), *entry);
    }
    return filled > room ? BarEntries() : crowded;
}

BarEntries withoutCrowded(const BarEntries &order, double room)
{
    BarEntries shown = order;
    if (const BarEntries crowded = crowdedOut(order, room); !crowded.empty()) {
        removeAll(shown, crowded);
        const auto own = std::ranges::find(shown, Place::own, &BarEntry::place);
        shown.insert(std::next(own), crowded.begin(), crowded.end());
    }
    return shown;
}

void takeIn(BarEntries &order, const BarEntries &crowded)
{
    removeAll(order, crowded);
    order.insert(std::ranges::find(order, Place::own, &BarEntry::place), crowded.begin(), crowded.end());
}

void makeRoomFor(const BarEntryPointer &entry, BarEntries &order, double room)
{
    auto at = std::ranges::find(order, entry);
    while (contains(crowdedOut(order, room), entry) && at != order.begin()
           && (*std::prev(at))->place != Place::pinned) {
        std::iter_swap(at, std::prev(at));
        --at;
    }
}

} // namespace brimshade::desktop
