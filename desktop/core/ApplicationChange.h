#pragma once
#include "ApplicationSpec.h"

// What changes for whoever shows an application when that changes.
namespace brimshade::desktop {

bool offerTheSame(const ApplicationSpec &one, const ApplicationSpec &other);
// The items, their names and where they stand; icons are the same while they are the same object.
bool listTheSame(const ApplicationSpec &one, const ApplicationSpec &other);

} // namespace brimshade::desktop
