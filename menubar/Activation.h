#pragma once

namespace brimshade::platform {
class Accessibility;
class Log;
} // namespace brimshade::platform

namespace brimshade::menubar {

struct MenuExtra;

// Presses an item, or has it show its menu where it cannot be pressed, and logs a failure. Blocks its thread for at
// most half a second; any thread.
void pressItem(platform::Accessibility &accessibility, platform::Log &log, const MenuExtra &extra);

} // namespace brimshade::menubar
