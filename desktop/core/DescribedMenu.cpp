#include "DescribedMenu.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

DescribedMenu::DescribedMenu(ElementPointer element, const QStringList &titles, Chosen chosen)
    : m_element(std::move(element)), m_chosen(std::move(chosen))
{
    for (const QString &title : titles) {
        MenuEntry entry;
        entry.id = static_cast<int>(m_entries.size()) + 1;
        entry.title = title;
        entry.isSeparator = title == "-"_L1;
        m_entries.push_back(std::move(entry));
    }
}

} // namespace brimshade::desktop
