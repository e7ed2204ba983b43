#pragma once

namespace brimshade::desktop::tray {

// Where the items stand in the bar: each where it stood in earlier runs of its program, or in order of arrival like
// listed ones.
enum class ItemPlaces { kept, listed };

} // namespace brimshade::desktop::tray
