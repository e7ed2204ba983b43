#pragma once

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::session {

// Passes the desktop's messages to the session's notification service, if there is one, without waiting for it. Main
// thread; owned by the desktop.
void showNotices(Desktop &desktop);

} // namespace brimshade::desktop::session
