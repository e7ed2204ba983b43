#include "HotkeyRegistry.h"

#include <algorithm>

namespace brimshade::desktop {

namespace {

constexpr int kEventHotKeyExistsErr = -9878; // CarbonEvents.h

} // namespace

void HotkeyRegistry::installEventHandler(platform::Work handler)
{
    m_handler = std::move(handler);
}

std::expected<platform::EventHotKeyRef, int>
HotkeyRegistry::registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers, platform::EventHotKeyID)
{
    const KeyCombination combination{keyCode, modifiers};
    if (isRegistered(combination))
        return std::unexpected(kEventHotKeyExistsErr);
    m_registered.emplace(++m_lastRef, combination);
    if (m_grabber)
        m_grabber->grab(combination);
    return m_lastRef;
}

void HotkeyRegistry::unregisterEventHotKey(platform::EventHotKeyRef ref)
{
    const auto found = m_registered.extract(ref);
    if (found && m_grabber)
        m_grabber->release(found.mapped());
}

bool HotkeyRegistry::press(std::uint32_t keyCode, std::uint32_t carbonModifiers)
{
    if (!isRegistered({keyCode, carbonModifiers}))
        return false;
    if (m_observer)
        m_observer();
    // A copy: the handler may install another one.
    if (const platform::Work handler = m_handler)
        handler();
    return true;
}

void HotkeyRegistry::setObserver(platform::Work observer)
{
    m_observer = std::move(observer);
}

std::optional<KeyCombination> HotkeyRegistry::current() const
{
    return m_registered.empty() ? std::nullopt : std::optional(m_registered.rbegin()->second);
}

void HotkeyRegistry::setGrabber(std::unique_ptr<GlobalKeyGrabber> grabber)
{
    m_grabber = std::move(grabber);
    if (!m_grabber)
        return;
    m_grabber->setPressed([this](KeyCombination pressed) { press(pressed.keyCode, pressed.modifiers); });
    for (const auto &[ref, combination] : m_registered)
        m_grabber->grab(combination);
}

bool HotkeyRegistry::isRegistered(KeyCombination combination) const
{
    return std::ranges::any_of(m_registered, [&](const auto &each) { return each.second == combination; });
}

} // namespace brimshade::desktop
