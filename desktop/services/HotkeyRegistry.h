#pragma once
#include "GlobalKeyGrabber.h"
#include "platform/Dispatch.h"
#include "platform/HotkeyCenter.h"

#include <map>
#include <memory>
#include <vector>

namespace brimshade::desktop {

// The hotkeys of the desktop. Presses come from the desktop's own input, and with a grabber also from the session
// around it. Main thread.
class HotkeyRegistry : public platform::HotkeyCenter {
public:
    struct Registered {
        HotkeyCombination combination;
        platform::EventHotKeyID id;
        QString purpose;
    };

    void installEventHandler(Handler handler) override;
    std::expected<platform::EventHotKeyRef, int> registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                                     platform::EventHotKeyID id,
                                                                     const QString &purpose) override;
    void unregisterEventHotKey(platform::EventHotKeyRef ref) override;
    void pushSymbolicHotKeyMode() override;
    void popSymbolicHotKeyMode() override;

    // True if the combination is registered and hotkeys are on; the handler has then run.
    bool press(std::uint32_t keyCode, std::uint32_t carbonModifiers);
    void setObserver(platform::Work observer); // runs before the handler, at each press
    // Runs when hotkeys go off or on; while they are off, the observer lets the key window have all keys, if it can.
    void setModeObserver(std::function<void(bool areOff)> observer);
    std::vector<Registered> registered() const; // by their numbers

    // Grabs everything registered now and later; null releases it all. A combination that the session refuses
    // afterwards keeps working inside the desktop.
    void setGrabber(std::unique_ptr<GlobalKeyGrabber> grabber);

    bool takes(HotkeyCombination combination) const; // pressing it would press a hotkey

private:
    const Registered *find(HotkeyCombination combination) const; // null for none
    bool grab(const Registered &hotkey);

    std::map<platform::EventHotKeyRef, Registered> m_registered;
    platform::EventHotKeyRef m_lastRef = 0;
    int m_timesOff = 0; // modes pushed and not yet popped
    Handler m_handler;
    platform::Work m_observer;
    std::function<void(bool)> m_modeObserver;
    std::unique_ptr<GlobalKeyGrabber> m_grabber;
};

} // namespace brimshade::desktop
