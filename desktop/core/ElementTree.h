#pragma once
#include "DesktopDescription.h"
#include "SharedState.h"

namespace brimshade::desktop {

// An item of an application and its element. A group is not an item; its children take its place.
struct DescribedExtra {
    ExtraDescription description;
    ElementPointer element;
};

// Makes or renews the elements below an extras menu bar or a group and returns the items among them, in the order
// listed. An extra that was there before keeps its element: the one under the same parent with the same identifier or,
// lacking one, the same role, title and description. Elements of extras that are gone die. Runs under the SharedState's
// lock.
std::vector<DescribedExtra> describeChildren(Element &parent, const std::vector<ExtraDescription> &extras);

// The application quit: the element and everything below it no longer answer.
void killChildren(Element &parent);

} // namespace brimshade::desktop
