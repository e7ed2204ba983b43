#pragma once
#include "MenuSource.h"

#include <QStringList>
#include <functional>

namespace brimshade::desktop {

// A menu of titles alone: choosing one tells its title.
class DescribedMenu : public MenuSource {
    Q_OBJECT
public:
    using Chosen = std::function<void(const QString &title)>;
    DescribedMenu(int pid, const QStringList &titles, Chosen chosen); // "-" is a separator

    int pid() const { return m_pid; } // of the application it belongs to
    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void choose(int id) override { m_chosen(m_entries.at(static_cast<std::size_t>(id) - 1).title); }

private:
    const int m_pid;
    const Chosen m_chosen;
    std::vector<MenuEntry> m_entries;
};

} // namespace brimshade::desktop
