#include "Hotkeys.h"
#include "platform/Weakly.h"

namespace brimshade::controls {

namespace {

constexpr std::uint32_t kSignature = 0x42524d53; // 'BRMS'

} // namespace

Hotkeys::Hotkeys(platform::HotkeyCenter &center) : m_center(center)
{
    m_center.installEventHandler([all = std::weak_ptr(m_all)](platform::EventHotKeyID id) {
        const auto known = all.lock();
        const auto found = known ? known->find(id.number) : All::iterator();
        if (!known || found == known->end())
            return;
        const platform::Work action = found->second.action; // it may be replaced meanwhile
        action();
    });
}

Hotkeys::~Hotkeys()
{
    for (const auto &[number, registered] : *m_all)
        m_center.unregisterEventHotKey(registered.ref);
}

bool Hotkeys::set(std::uint32_t number, const model::KeyCombination &keys, const QString &purpose,
                  platform::Work action)
{
    if (const auto before = m_all->find(number); before != m_all->end() && before->second.keys == keys)
        return true;
    const auto ref = m_center.registerEventHotKey(keys.keyCode, keys.modifiers, {kSignature, number}, purpose);
    if (!ref)
        return false;
    clear(number);
    m_all->emplace(number, Registered{*ref, keys, std::move(action)});
    return true;
}

void Hotkeys::clear(std::uint32_t number)
{
    if (const auto before = m_all->extract(number))
        m_center.unregisterEventHotKey(before.mapped().ref);
}

} // namespace brimshade::controls
