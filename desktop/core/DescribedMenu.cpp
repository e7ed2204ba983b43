#include "DescribedMenu.h"

namespace brimshade::desktop {

DescribedMenu::DescribedMenu(ElementPointer element, const QStringList &titles, Chosen chosen)
    : m_element(std::move(element)), m_chosen(std::move(chosen))
{
    for (const QString &title : titles) {
        MenuEntry entry;
        entry.id = static_cast<int>(m_entries.size()) + 1;
        entry.title = title;
        entry.isSeparator = title == QLatin1StringView("-");
        m_entries.push_back(std::move(entry));
    }
}

} // namespace brimshade::desktop
