#include "TrayMenu.h"

namespace brimshade::desktop::tray {

TrayMenu::TrayMenu(MenuClient &client) : m_client(&client), m_entries(client.entries())
{
    connect(&client, &MenuClient::changed, this, &TrayMenu::follow);
    connect(&client, &QObject::destroyed, this, &TrayMenu::follow);
}

void TrayMenu::aboutToShow(int id)
{
    if (m_client)
        m_client->aboutToShow(id);
}

void TrayMenu::choose(int id)
{
    if (m_client)
        m_client->choose(id);
}

void TrayMenu::closed()
{
    if (m_client)
        m_client->close();
    m_client = nullptr;
}

void TrayMenu::follow()
{
    m_entries = m_client ? m_client->entries() : std::vector<MenuEntry>();
    Q_EMIT changed();
}

} // namespace brimshade::desktop::tray
