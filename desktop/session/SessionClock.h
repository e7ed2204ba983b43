#pragma once

namespace brimshade::desktop {

class Desktop;

namespace session {

// The bar's clock: a pinned item whose menu is the date, written out in the user's language. It is a part of the
// desktop, but listed as an application, as every item needs an owner. Main thread.
void launchClock(Desktop &desktop);

} // namespace session
} // namespace brimshade::desktop
