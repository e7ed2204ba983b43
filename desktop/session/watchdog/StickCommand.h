#pragma once

namespace brimshade::desktop {
class ScriptRunner;
}

namespace brimshade::desktop::session {

// {"do":"stick","seconds":N}: the main thread hangs that long and does nothing else.
void addStickCommand(ScriptRunner &script);

} // namespace brimshade::desktop::session
