#pragma once
#include "model/KeyCombination.h"
#include "platform/Dispatch.h"
#include "platform/HotkeyCenter.h"

#include <map>
#include <memory>

namespace brimshade::controls {

// The global shortcuts of the program, each by a number that is the same at every launch. Main thread; the centre
// outlives it.
class Hotkeys {
public:
    explicit Hotkeys(platform::HotkeyCenter &center);
    ~Hotkeys();
    Hotkeys(const Hotkeys &) = delete;
    Hotkeys &operator=(const Hotkeys &) = delete;

    // Replaces the hotkey of that number; the same keys again change nothing. False: the system refuses the keys, and
    // the hotkey keeps those it had. purpose: what a press does, in the user's language. The action should hold what it
    // needs weakly.
    bool set(std::uint32_t number, const model::KeyCombination &keys, const QString &purpose, platform::Work action);
    void clear(std::uint32_t number);

private:
    struct Registered {
        platform::EventHotKeyRef ref = 0;
        model::KeyCombination keys;
        platform::Work action;
    };
    using All = std::map<std::uint32_t, Registered>;

    platform::HotkeyCenter &m_center;
    const std::shared_ptr<All> m_all = std::make_shared<All>(); // the centre's handler holds it weakly
};

} // namespace brimshade::controls
