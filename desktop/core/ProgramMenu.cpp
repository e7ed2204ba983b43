#include "MenuHost.h"

#include <QCoreApplication>
#include <utility>

namespace brimshade::desktop {

namespace {

class ProgramMenu : public MenuSource {
public:
    explicit ProgramMenu(const platform::Menu &menu) : m_menu(menu)
    {
        for (const platform::MenuItem &item : m_menu.items) {
            MenuEntry entry;
            entry.id = static_cast<int>(m_entries.size()) + 1;
            entry.title = item.title;
            entry.isSeparator = item.isSeparator;
            entry.isEnabled = item.isEnabled;
            entry.shortcut = item.shortcut;
            if (!item.keyEquivalent.isEmpty())
                entry.shortcut = QCoreApplication::translate("Shortcut", "⌘%1").arg(item.keyEquivalent.toUpper());
            m_entries.push_back(std::move(entry));
        }
    }

    const std::vector<MenuEntry> &entries() const override { return m_entries; }

    void choose(int id) override
    {
        if (const platform::Work &action = m_menu.items.at(static_cast<std::size_t>(id) - 1).action)
            action();
    }

private:
    const platform::Menu m_menu;
    std::vector<MenuEntry> m_entries;
};

} // namespace

std::shared_ptr<MenuSource> makeMenuSource(const platform::Menu &menu)
{
    return std::make_shared<ProgramMenu>(menu);
}

} // namespace brimshade::desktop
