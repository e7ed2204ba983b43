#include "ExtraRows.h"

#include <QSet>
#include <algorithm>

namespace brimshade::windows {

using menubar::ExtraList;
using menubar::MenuExtra;

namespace {

bool looksTheSame(const MenuExtra &a, const MenuExtra &b)
{
    return a.name == b.name && a.detail == b.detail && a.icon.isSameObject(b.icon) && a.symbol == b.symbol
        && a.isHidden == b.isHidden && a.canMove == b.canMove;
}

} // namespace

int ExtraRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_extras.size());
}

QVariant ExtraRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MenuExtra &extra = m_extras[static_cast<size_t>(index.row())];
    switch (role) {
    case ExtraIDRole:
        return extra.id;
    case NameRole:
        return extra.name;
    case DetailRole:
        return extra.detail;
    case ImageRole:
        return QVariant::fromValue(extra.icon);
    case SymbolRole:
        return extra.symbol.value_or(QStringLiteral("circle"));
    case CanMoveRole:
        return extra.canMove;
    default:
        return {};
    }
}

QHash<int, QByteArray> ExtraRows::roleNames() const
{
    return {{ExtraIDRole, "extraID"}, {NameRole, "name"},     {DetailRole, "detail"},
            {ImageRole, "image"},     {SymbolRole, "symbol"}, {CanMoveRole, "canMove"}};
}

void ExtraRows::setExtras(const ExtraList &extras)
{
    removeVanished(extras);
    for (size_t row = 0; row < extras.size(); ++row)
        place(static_cast<int>(row), extras[row]);
}

const MenuExtra *ExtraRows::find(const QString &id) const
{
    const auto found = std::ranges::find(m_extras, id, &MenuExtra::id);
    return found == m_extras.end() ? nullptr : &*found;
}

void ExtraRows::refresh(const QList<int> &roles)
{
    if (!m_extras.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), roles);
}

void ExtraRows::removeVanished(const ExtraList &wanted)
{
    QSet<QString> ids;
    for (const MenuExtra &extra : wanted)
        ids.insert(extra.id);
    for (int row = rowCount() - 1; row >= 0; --row) {
        const auto place = m_extras.begin() + row;
        if (ids.contains(place->id))
            continue;
        beginRemoveRows({}, row, row);
        m_extras.erase(place);
        endRemoveRows();
    }
}

// The rows before this one are in place already, so the extra is here, further on or new.
void ExtraRows::place(int row, const MenuExtra &extra)
{
    const auto here = m_extras.begin() + row;
    const auto found = std::ranges::find(here, m_extras.end(), extra.id, &MenuExtra::id);
    if (found == m_extras.end()) {
        beginInsertRows({}, row, row);
        m_extras.insert(here, extra);
        endInsertRows();
        return;
    }
    if (found != here) {
        const int from = static_cast<int>(found - m_extras.begin());
        beginMoveRows({}, from, from, {}, row);
        std::rotate(here, found, found + 1);
        endMoveRows();
    }
    update(row, extra);
}

void ExtraRows::update(int row, const MenuExtra &extra)
{
    MenuExtra &kept = m_extras[static_cast<size_t>(row)];
    const bool differs = !looksTheSame(kept, extra);
    kept = extra; // its frame and element too, which no role shows
    if (differs)
        Q_EMIT dataChanged(index(row), index(row));
}

} // namespace brimshade::windows
