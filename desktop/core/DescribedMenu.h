#pragma once
#include "MenuSource.h"
#include "SharedState.h"

#include <QStringList>
#include <functional>

namespace brimshade::desktop {

// A menu of nothing but titles; choosing one reports it.
class DescribedMenu : public MenuSource {
    Q_OBJECT
public:
    using Chosen = std::function<void(const QString &title)>;
    DescribedMenu(ElementPointer element, const QStringList &titles, Chosen chosen); // "-" is a separator

    const ElementPointer &element() const { return m_element; } // the item whose menu it is
    const std::vector<MenuEntry> &entries() const override { return m_entries; }
    void choose(int id) override { m_chosen(m_entries.at(static_cast<std::size_t>(id) - 1).title); }

private:
    const ElementPointer m_element;
    const Chosen m_chosen;
    std::vector<MenuEntry> m_entries;
};

} // namespace brimshade::desktop
