#pragma once
#include "GlobalKeyGrabber.h"
#include "platform/HotkeyCenter.h"

#include <map>
#include <memory>
#include <optional>

namespace brimshade::desktop {

// The hotkeys of the desktop. Presses come from the desktop's own input, and with a grabber also from the session
// around it. Main thread.
class HotkeyRegistry : public platform::HotkeyCenter {
public:
    void installEventHandler(platform::Work handler) override;
    std::expected<platform::EventHotKeyRef, int> registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                                     platform::EventHotKeyID id) override;
    void unregisterEventHotKey(platform::EventHotKeyRef ref) override;

    // True when the combination is registered; the handler has run then.
    bool press(std::uint32_t keyCode, std::uint32_t carbonModifiers);
    void setObserver(platform::Work observer); // runs before the handler, at each press
    std::optional<KeyCombination> current() const; // the latest of those registered

    // Grabs what is registered now and later; null lets go. A combination that the session refuses keeps working
    // inside the desktop.
    void setGrabber(std::unique_ptr<GlobalKeyGrabber> grabber);

    bool isRegistered(KeyCombination combination) const;

private:
    std::map<platform::EventHotKeyRef, KeyCombination> m_registered;
    platform::EventHotKeyRef m_lastRef = 0;
    platform::Work m_handler;
    platform::Work m_observer;
    std::unique_ptr<GlobalKeyGrabber> m_grabber;
};

} // namespace brimshade::desktop
