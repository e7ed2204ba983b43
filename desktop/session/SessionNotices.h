#pragma once

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::session {

// Hands what the desktop has to tell a person to the session's notification service, where there is one; nothing waits
// for it. Main thread; the desktop's.
void showNotices(Desktop &desktop);

} // namespace brimshade::desktop::session
