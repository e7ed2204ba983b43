#include "ScriptedLoginItem.h"

#include <utility>

namespace brimshade::desktop {

using platform::LoginItemStatus;

void ScriptedLoginItem::answer(LoginItemStatus status, std::optional<QString> failure)
{
    m_status = status;
    m_failure = std::move(failure);
}

std::expected<void, QString> ScriptedLoginItem::registerMainApp()
{
    return change(LoginItemStatus::enabled);
}

std::expected<void, QString> ScriptedLoginItem::unregisterMainApp()
{
    return change(LoginItemStatus::notRegistered);
}

std::expected<void, QString> ScriptedLoginItem::change(LoginItemStatus status)
{
    if (m_failure)
        return std::unexpected(*m_failure);
    m_status = status;
    return {};
}

} // namespace brimshade::desktop
