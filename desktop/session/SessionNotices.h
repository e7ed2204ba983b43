#pragma once

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::session {

// Hands the desktop's messages to the session's notification service, where there is one; nothing waits for it. Main
// thread; owned by the desktop.
void showNotices(Desktop &desktop);

} // namespace brimshade::desktop::session
