#pragma once
#include "model/Shortcut.h"
#include "platform/HotkeyCenter.h"

#include <optional>

namespace brimshade::controls {

// The one global shortcut of the program. A combination that the system refuses is silently without effect. Main
// thread.
class Hotkey {
public:
    // The action runs on each press, as long as the centre lives; what it needs it holds weakly.
    Hotkey(platform::HotkeyCenter &center, platform::Work action);
    ~Hotkey();
    Hotkey(const Hotkey &) = delete;
    Hotkey &operator=(const Hotkey &) = delete;

    void set(model::Shortcut shortcut); // replaces what was registered, also by the same again

private:
    void unregister();

    platform::HotkeyCenter &m_center;
    std::optional<platform::EventHotKeyRef> m_ref;
};

} // namespace brimshade::controls
