#include "Hotkey.h"

namespace brimshade::controls {

namespace {

constexpr platform::EventHotKeyID kIdentifier{0x42524d53, 1}; // 'BRMS'

}

Hotkey::Hotkey(platform::HotkeyCenter &center, platform::Work action) : m_center(center)
{
    m_center.installEventHandler(std::move(action));
}

Hotkey::~Hotkey()
{
    unregister();
}

void Hotkey::set(model::Shortcut shortcut)
{
    unregister();
    const std::optional<model::KeyCombination> keys = model::keyCombination(shortcut);
    if (!keys)
        return;
    if (const auto ref = m_center.registerEventHotKey(keys->keyCode, keys->modifiers, kIdentifier))
        m_ref = *ref;
}

void Hotkey::unregister()
{
    if (m_ref)
        m_center.unregisterEventHotKey(*m_ref);
    m_ref.reset();
}

} // namespace brimshade::controls
