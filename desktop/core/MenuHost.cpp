#include "MenuHost.h"
#include "SharedState.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

template <typename Matches> const MenuEntry *findLeaf(const std::vector<MenuEntry> &entries, const Matches &matches)
{
    for (const MenuEntry &entry : entries) {
        if (!entry.isEnabled || entry.isSeparator)
            continue;
        if (!entry.hasSubmenu && matches(entry))
            return &entry;
        if (const MenuEntry *found = findLeaf(entry.submenu, matches))
            return found;
    }
    return nullptr;
}

} // namespace

MenuHost::MenuHost(const SharedState &state) : m_state(state) { }

MenuHost::~MenuHost() = default;

void MenuHost::open(std::shared_ptr<MenuSource> source, const QRectF &anchor, platform::Work dismissed)
{
    dismiss();
    m_open = std::make_unique<OpenMenu>(OpenMenu{std::move(source), anchor, std::move(dismissed)});
    if (m_open->source->entries().empty()) {
        close(nullptr);
        return;
    }
    connect(m_open->source.get(), &MenuSource::changed, this, [this] {
        if (m_open && m_open->source->entries().empty())
            close(nullptr);
        else
            Q_EMIT changed();
    });
    Q_EMIT changed();
}

void MenuHost::popUpContextMenu(const platform::Menu &menu, std::optional<QPointF> at, platform::Work dismissed)
{
    const QPointF corner = at ? platform::flipped(*at, m_state.primaryHeight()) : m_state.pointer();
    open(makeMenuSource(menu), QRectF(corner, QSizeF(0, 0)), std::move(dismissed));
}

void MenuHost::dismiss()
{
    if (m_open)
        close(nullptr);
}

// The menu is gone before the entry takes effect, because that may open the next menu.
void MenuHost::close(const int *chosen)
{
    const auto closed = std::move(m_open);
    disconnect(closed->source.get(), nullptr, this, nullptr);
    Q_EMIT changed();
    if (chosen)
        closed->source->choose(*chosen);
    closed->source->closed();
    if (closed->dismissed)
        closed->dismissed();
}

MenuSource *MenuHost::openMenu() const
{
    return m_open ? m_open->source.get() : nullptr;
}

QRectF MenuHost::anchor() const
{
    return m_open ? m_open->anchor : QRectF();
}

QStringList MenuHost::titles() const
{
    QStringList titles;
    if (m_open) {
        for (const MenuEntry &entry : m_open->source->entries())
            titles << (entry.isSeparator ? u"-"_s : entry.title);
    }
    return titles;
}

bool MenuHost::choose(const QString &title)
{
    const MenuEntry *entry = m_open
        ? findLeaf(m_open->source->entries(), [&](const MenuEntry &leaf) { return leaf.title == title; })
        : nullptr;
    if (!entry)
        return false;
    const int id = entry->id;
    close(&id);
    return true;
}

void MenuHost::choose(int id)
{
    if (m_open && findLeaf(m_open->source->entries(), [id](const MenuEntry &leaf) { return leaf.id == id; }))
        close(&id);
}

} // namespace brimshade::desktop
