#pragma once

namespace brimshade::desktop {

class Desktop;
class ScriptRunner;

// The commands with which a script changes an invented desktop: its applications, screens, permission, bar and login
// item. The desktop outlives the runner.
void addWorldCommands(ScriptRunner &runner, Desktop &desktop);

} // namespace brimshade::desktop
