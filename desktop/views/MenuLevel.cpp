#include "MenuLevel.h"

#include <algorithm>

namespace brimshade::desktop {

namespace {

QList<int> changes(const MenuEntry &before, const MenuEntry &after)
{
    QList<int> roles;
    if (before.title != after.title)
        roles << MenuLevel::TitleRole;
    if (before.isSeparator != after.isSeparator)
        roles << MenuLevel::SeparatorRole;
    if (before.isEnabled != after.isEnabled)
        roles << MenuLevel::EnabledRole;
    if (before.toggle != after.toggle)
        roles << MenuLevel::ToggleRole;
    if (before.isOn != after.isOn)
        roles << MenuLevel::OnRole;
    if (before.icon != after.icon)
        roles << MenuLevel::IconRole;
    if (before.shortcut != after.shortcut)
        roles << MenuLevel::ShortcutRole;
    if (before.hasSubmenu != after.hasSubmenu)
        roles << MenuLevel::SubmenuRole;
    return roles;
}

} // namespace

void MenuLevel::setEntries(const std::vector<MenuEntry> &entries)
{
    const MenuEntry *before = currentEntry();
    const int chosen = before ? before->id : 0;
    m_entries = entries;
    m_tops.assign(1, MenuMetrics::padding);
    m_current = -1;
    for (const MenuEntry &each : m_entries) {
        if (chosen && each.id == chosen && isChoosable(each))
            m_current = int(m_tops.size()) - 1;
        m_tops.push_back(m_tops.back() + menuRowHeight(each));
    }
    m_columns = menuColumns(m_entries);
    updateShown();
    Q_EMIT geometryChanged();
    Q_EMIT currentChanged();
}

void MenuLevel::setFrame(const QRectF &frame)
{
    m_frame = frame;
    setScroll(m_scroll);
    updateShown();
    Q_EMIT geometryChanged();
    Q_EMIT scrollChanged();
}

void MenuLevel::setCurrent(int row)
{
    if (m_current == row)
        return;
    m_current = row;
    Q_EMIT currentChanged();
    if (row < 0)
        return;
    const QRectF frame = rowFrame(row);
    if (frame.top() < m_frame.top() + MenuMetrics::padding)
        setScroll(m_scroll - (m_frame.top() + MenuMetrics::padding - frame.top()));
    else if (frame.bottom() > m_frame.bottom() - MenuMetrics::padding)
        setScroll(m_scroll + frame.bottom() - (m_frame.bottom() - MenuMetrics::padding));
}

void MenuLevel::scrollBy(double points)
{
    setScroll(m_scroll + points);
}

void MenuLevel::setScroll(double scroll)
{
    scroll = std::clamp(scroll, 0.0, largestScroll());
    if (m_scroll == scroll)
        return;
    m_scroll = scroll;
    updateShown();
    Q_EMIT scrollChanged();
}

void MenuLevel::updateShown()
{
    std::vector<Shown> shown;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_tops[i + 1] > m_scroll && m_tops[i] < m_scroll + m_frame.height())
            shown.push_back({int(i), m_tops[i], m_entries[i]});
    }
    setRows(
        m_shown, shown, [](const Shown &each) { return QString::number(each.entry.id); },
        [](Shown &row, const Shown &wanted) {
            QList<int> roles = changes(row.entry, wanted.entry);
            if (row.row != wanted.row || row.top != wanted.top)
                roles << RowRole << OffsetRole;
            row = wanted;
            return roles;
        });
}

double MenuLevel::largestScroll() const
{
    return m_tops.empty() ? 0 : std::max(0.0, m_tops.back() + MenuMetrics::padding - m_frame.height());
}

const MenuEntry *MenuLevel::currentEntry() const
{
    return m_current >= 0 ? &m_entries[m_current] : nullptr;
}

int MenuLevel::rowAt(QPointF point) const
{
    if (!m_frame.contains(point) || m_tops.empty())
        return -1;
    const double y = point.y() - m_frame.top() + m_scroll;
    const auto after = std::upper_bound(m_tops.begin(), m_tops.end(), y);
    return after == m_tops.begin() || after == m_tops.end() ? -1 : int(after - m_tops.begin()) - 1;
}

QRectF MenuLevel::rowFrame(int row) const
{
    return {m_frame.left(), m_frame.top() + m_tops[row] - m_scroll, m_frame.width(), m_tops[row + 1] - m_tops[row]};
}

int MenuLevel::neighbour(int row, int step) const
{
    const int count = int(m_entries.size());
    const int start = row < 0 && step < 0 ? count : row;
    for (int next = start + step; next >= 0 && next < count; next += step) {
        if (isChoosable(m_entries[next]))
            return next;
    }
    return row;
}

int MenuLevel::rowStartingWith(const QString &text) const
{
    const int count = int(m_entries.size());
    for (int offset = 1; offset <= count; ++offset) {
        const int row = (m_current + offset + count) % count;
        if (isChoosable(m_entries[row]) && m_entries[row].title.startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return m_current;
}

QVariant MenuLevel::value(int row, int role) const
{
    const MenuEntry &entry = m_shown[std::size_t(row)].entry;
    switch (role) {
    case RowRole:
        return m_shown[std::size_t(row)].row;
    case OffsetRole:
        return m_shown[std::size_t(row)].top;
    case TitleRole:
        return entry.title;
    case SeparatorRole:
        return entry.isSeparator;
    case EnabledRole:
        return entry.isEnabled;
    case ToggleRole:
        return int(entry.toggle);
    case OnRole:
        return entry.isOn;
    case IconRole:
        return QVariant::fromValue(entry.icon);
    case ShortcutRole:
        return entry.shortcut;
    case SubmenuRole:
        return entry.hasSubmenu;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuLevel::roleNames() const
{
    return {
        {RowRole, "row"},           {OffsetRole, "offset"},     {TitleRole, "title"}, {SeparatorRole, "isSeparator"},
        {EnabledRole, "isEnabled"}, {ToggleRole, "toggle"},     {OnRole, "isOn"},     {IconRole, "image"},
        {ShortcutRole, "shortcut"}, {SubmenuRole, "hasSubmenu"}};
}

} // namespace brimshade::desktop
