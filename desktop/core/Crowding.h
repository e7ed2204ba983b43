#pragma once
#include "BarEntry.h"

#include <vector>

// Which items make way for the own item where the bar is too full to show it. Orders run from right to left, room is
// the points for what is drawn. Pure functions.
namespace brimshade::desktop {

using BarEntries = std::vector<BarEntryPointer>;

// Points that it takes in the bar.
double takenBy(const BarEntry &entry);

// The leftmost of those right of the own item that come and go, as many as must go for it to fit; none when it would
// not fit even then, or when there is no own item.
BarEntries crowdedOut(const BarEntries &order, double room);

// The order with those left of the own item, beside it.
BarEntries withoutCrowded(const BarEntries &order, double room);

// Brings those back to the right of the own item.
void takeIn(BarEntries &order, const BarEntries &crowded);

// Moves an item of the order to the right until it is no longer crowded out; others are instead.
void makeRoomFor(const BarEntryPointer &entry, BarEntries &order, double room);

} // namespace brimshade::desktop
