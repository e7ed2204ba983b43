#pragma once
#include "MenuClient.h"

#include <QPointer>

namespace brimshade::desktop::tray {

// A program's menu for one opening. It outlives the program: then it is empty.
class TrayMenu : public MenuSource {
    Q_OBJECT
public:
    explicit TrayMenu(MenuClient &client);

    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void aboutToShow(int id) override;
    void choose(int id) override;
    void closed() override;

private:
    void follow(); // takes the client's entries over

    QPointer<MenuClient> m_client;
    std::vector<MenuEntry> m_entries;
};

} // namespace brimshade::desktop::tray
