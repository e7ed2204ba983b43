#pragma once
#include "BarEntry.h"

#include <vector>

// Which items make way for our own item when the bar is too full to show it. Orders run from right to left, room is the
// points for what is drawn. Pure functions.
namespace brimshade::desktop {

using BarEntries = std::vector<BarEntryPointer>;

// The points that the item takes up in the bar.
double takenBy(const BarEntry &entry);

// The leftmost items right of our own one that come and go, just enough of them for it to fit; none if it would not fit
// even then, or if there is no own item.
BarEntries crowdedOut(const BarEntries &order, double room);

// The order with the crowded-out items directly left of our own item.
BarEntries withoutCrowded(const BarEntries &order, double room);

// Brings those back to the right of our own item.
void takeIn(BarEntries &order, const BarEntries &crowded);

// Moves an item of the order to the right until others are crowded out instead of it.
void makeRoomFor(const BarEntryPointer &entry, BarEntries &order, double room);

} // namespace brimshade::desktop
