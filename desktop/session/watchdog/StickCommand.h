#pragma once

namespace brimshade::desktop {
class ScriptRunner;
}

namespace brimshade::desktop::session {

// Adds {"do":"stick","seconds":N}: the main thread hangs that long.
void addStickCommand(ScriptRunner &script);

} // namespace brimshade::desktop::session
