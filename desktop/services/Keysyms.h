#pragma once
#include <cstdint>

namespace brimshade::desktop {

// X's name for the key of a virtual key code (platform/KeyCodes.h): what it types unshifted on an ANSI keyboard. 0 for
// a code that no key has.
std::uint32_t keysymOf(std::uint32_t keyCode);

} // namespace brimshade::desktop
