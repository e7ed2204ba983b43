#pragma once

namespace brimshade::desktop::tray {

// Where the items stand in the bar: each where what it is stood before, or as they come, like any that is listed.
enum class ItemPlaces { kept, listed };

} // namespace brimshade::desktop::tray
