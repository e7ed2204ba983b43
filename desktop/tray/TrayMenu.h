#pragma once
#include "MenuClient.h"

#include <QPointer>

namespace brimshade::desktop::tray {

// A program's menu for one opening. It may outlive the program, and is then empty.
class TrayMenu : public MenuSource {
    Q_OBJECT
public:
    explicit TrayMenu(MenuClient &client);

    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void aboutToShow(int id) override;
    void choose(int id) override;
    void closed() override;

private:
    void follow(); // copies the client's entries

    QPointer<MenuClient> m_client;
    std::vector<MenuEntry> m_entries;
};

} // namespace brimshade::desktop::tray
