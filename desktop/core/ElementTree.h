#pragma once
#include "DesktopDescription.h"
#include "SharedState.h"

namespace brimshade::desktop {

// An item of an application and its element. A group is not an item; its children take its place.
struct DescribedExtra {
    ExtraDescription description;
    ElementPointer element;
};

// Makes or renews the elements below an extras menu bar or a group and answers the items among them, in the order
// listed. An extra that was there before keeps its element: the one of the same identifier, or without any of the same
// role, title and description, under the same parent. Elements of extras that are gone die. Run under the SharedState's
// lock.
std::vector<DescribedExtra> describeChildren(Element &parent, const std::vector<ExtraDescription> &extras);

// The application quit: neither it nor anything below it answers any more.
void killChildren(Element &parent);

} // namespace brimshade::desktop
