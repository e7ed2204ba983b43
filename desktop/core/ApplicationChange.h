#pragma once
#include "ApplicationSpec.h"

// What a change of an application means to those who show it.
namespace brimshade::desktop {

bool offerTheSame(const ApplicationSpec &one, const ApplicationSpec &other);
// Compares the items, their names and whether they are away; icons are the same if they are the same object.
bool listTheSame(const ApplicationSpec &one, const ApplicationSpec &other);

} // namespace brimshade::desktop
