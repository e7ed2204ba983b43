#include "HotkeyRegistry.h"

#include <algorithm>
#include <ranges>

namespace brimshade::desktop {

namespace {

constexpr int kEventHotKeyExistsErr = -9878; // CarbonEvents.h

} // namespace

void HotkeyRegistry::installEventHandler(Handler handler)
{
    m_handler = std::move(handler);
}

std::expected<platform::EventHotKeyRef, int> HotkeyRegistry::registerEventHotKey(std::uint32_t keyCode,
                                                                                 std::uint32_t modifiers,
                                                                                 platform::EventHotKeyID id,
                                                                                 const QString &purpose)
{
    const Registered hotkey{{keyCode, modifiers}, id, purpose};
    if (find(hotkey.combination) || !grab(hotkey))
        return std::unexpected(kEventHotKeyExistsErr);
    m_registered.emplace(++m_lastRef, hotkey);
    return m_lastRef;
}

void HotkeyRegistry::unregisterEventHotKey(platform::EventHotKeyRef ref)
{
    const auto found = m_registered.extract(ref);
    if (found && m_grabber)
        m_grabber->release(found.mapped().combination);
}

void HotkeyRegistry::pushSymbolicHotKeyMode()
{
    if (m_timesOff++ == 0 && m_modeObserver)
        m_modeObserver(true);
}

void HotkeyRegistry::popSymbolicHotKeyMode()
{
    if (--m_timesOff == 0 && m_modeObserver)
        m_modeObserver(false);
}

bool HotkeyRegistry::press(std::uint32_t keyCode, std::uint32_t carbonModifiers)
{
    const HotkeyCombination combination{keyCode, carbonModifiers};
    if (!takes(combination))
        return false;
    const platform::EventHotKeyID id = find(combination)->id;
    if (m_observer)
        m_observer();
    // A copy: the handler may install another one.
    if (const Handler handler = m_handler)
        handler(id);
    return true;
}

void HotkeyRegistry::setObserver(platform::Work observer)
{
    m_observer = std::move(observer);
}

void HotkeyRegistry::setModeObserver(std::function<void(bool)> observer)
{
    m_modeObserver = std::move(observer);
}

std::vector<HotkeyRegistry::Registered> HotkeyRegistry::registered() const
{
    const auto all = m_registered | std::views::values;
    std::vector<Registered> sorted(all.begin(), all.end());
    std::ranges::sort(sorted, {}, [](const Registered &each) { return each.id.number; });
    return sorted;
}

void HotkeyRegistry::setGrabber(std::unique_ptr<GlobalKeyGrabber> grabber)
{
    m_grabber = std::move(grabber);
    if (!m_grabber)
        return;
    m_grabber->setPressed([this](HotkeyCombination pressed) { press(pressed.keyCode, pressed.modifiers); });
    for (const auto &[ref, hotkey] : m_registered)
        grab(hotkey);
}

bool HotkeyRegistry::takes(HotkeyCombination combination) const
{
    return m_timesOff == 0 && find(combination);
}

const HotkeyRegistry::Registered *HotkeyRegistry::find(HotkeyCombination combination) const
{
    const auto found =
        std::ranges::find_if(m_registered, [&](const auto &each) { return each.second.combination == combination; });
    return found == m_registered.end() ? nullptr : &found->second;
}

bool HotkeyRegistry::grab(const Registered &hotkey)
{
    return !m_grabber || m_grabber->grab(hotkey.combination, {hotkey.id.number, hotkey.purpose});
}

} // namespace brimshade::desktop
