#include "TilesModel.h"
#include "TilesInView.h"

#include <QSet>
#include <algorithm>
#include <cmath>

namespace brimshade::panel {

namespace {

bool looksEqual(const model::MenuExtra &a, const model::MenuExtra &b)
{
    return a.name == b.name && a.detail == b.detail && a.icon.isSameObject(b.icon) && a.symbol == b.symbol
        && a.tint == b.tint && a.isHidden == b.isHidden;
}

} // namespace

void TilesModel::setSource(model::NotchModel *source)
{
    if (m_source == source)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = source;
    if (source) {
        connect(source, &model::NotchModel::matchesChanged, this, [this] { update(false); });
        connect(this, &TilesModel::viewChanged, this, [this] { update(true); });
    }
    update(false);
    Q_EMIT sourceChanged();
}

int TilesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_tiles.size());
}

QHash<int, QByteArray> TilesModel::roleNames() const
{
    return {{ExtraIDRole, "extraID"},   {NameRole, "name"},         {DetailRole, "detail"},
            {IconRole, "icon"},         {SymbolRole, "symbol"},     {TintRole, "tint"},
            {IsHiddenRole, "isHidden"}, {PositionRole, "position"}, {IsNewRole, "isNew"}};
}

QVariant TilesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Tile &tile = m_tiles[std::size_t(index.row())];
    switch (role) {
    case ExtraIDRole:
        return tile.extra.id;
    case NameRole:
        return tile.extra.name;
    case DetailRole:
        return tile.extra.detail;
    case IconRole:
        return QVariant::fromValue(tile.extra.icon);
    case SymbolRole:
        return tile.extra.symbol.value_or(QString());
    case TintRole:
        return tile.extra.tint;
    case IsHiddenRole:
        return tile.extra.isHidden;
    case PositionRole:
        return tile.position;
    case IsNewRole:
        return tile.isNew;
    default:
        return {};
    }
}

std::vector<TilesModel::Tile> TilesModel::wanted(bool byScrolling) const
{
    std::vector<Tile> tiles;
    if (!m_source || m_viewBottom <= m_viewTop)
        return tiles;
    const auto &matches = m_section == BehindTheNotch ? m_source->hiddenMatches() : m_source->visibleMatches();
    const auto [first, end] = tilesInView(m_viewTop, m_viewBottom, m_source->columns(), int(matches.size()));
    tiles.reserve(std::size_t(end - first));
    for (int i = first; i < end; ++i) {
        const auto &extra = m_source->extras()[std::size_t(matches[std::size_t(i)])];
        tiles.push_back({extra, i, !byScrolling});
    }
    return tiles;
}

void TilesModel::update(bool byScrolling)
{
    const std::vector<Tile> target = wanted(byScrolling);
    removeUnwanted(target);
    for (std::size_t row = 0; row < target.size(); ++row) {
        place(row, target);
        refresh(row, target[row]);
    }
    if (m_tiles.size() > target.size()) { // only where ids repeat
        beginRemoveRows({}, int(target.size()), int(m_tiles.size()) - 1);
        m_tiles.resize(target.size());
        endRemoveRows();
    }
}

void TilesModel::removeUnwanted(const std::vector<Tile> &target)
{
    QSet<QString> ids;
    for (const Tile &tile : target)
        ids.insert(tile.extra.id);
    const auto isUnwanted = [&](std::size_t row) { return !ids.contains(m_tiles[row].extra.id); };
    for (std::size_t end = m_tiles.size(); end > 0;) {
        std::size_t first = end;
        while (first > 0 && isUnwanted(first - 1))
            --first;
        if (first == end) {
            --end;
            continue;
        }
        beginRemoveRows({}, int(first), int(end) - 1);
        m_tiles.erase(m_tiles.begin() + std::ptrdiff_t(first), m_tiles.begin() + std::ptrdiff_t(end));
        endRemoveRows();
        end = first;
    }
}

// Brings the wanted tile to its row: it is there, or further down, or new together with those that follow it.
void TilesModel::place(std::size_t row, const std::vector<Tile> &target)
{
    const auto rowOf = [&](const QString &id) {
        const auto from = m_tiles.begin() + std::ptrdiff_t(std::min(row, m_tiles.size()));
        return std::size_t(std::ranges::find(from, m_tiles.end(), id, [](const Tile &t) { return t.extra.id; })
                           - m_tiles.begin());
    };
    const std::size_t present = rowOf(target[row].extra.id);
    if (present == row && present < m_tiles.size())
        return;
    if (present < m_tiles.size()) {
        beginMoveRows({}, int(present), int(present), {}, int(row));
        std::rotate(m_tiles.begin() + std::ptrdiff_t(row), m_tiles.begin() + std::ptrdiff_t(present),
                    m_tiles.begin() + std::ptrdiff_t(present) + 1);
        endMoveRows();
        return;
    }
    std::size_t end = row + 1;
    while (end < target.size() && rowOf(target[end].extra.id) == m_tiles.size())
        ++end;
    beginInsertRows({}, int(row), int(end) - 1);
    m_tiles.insert(m_tiles.begin() + std::ptrdiff_t(row), target.begin() + std::ptrdiff_t(row),
                   target.begin() + std::ptrdiff_t(end));
    endInsertRows();
}

void TilesModel::refresh(std::size_t row, const Tile &tile)
{
    Tile &shown = m_tiles[row];
    QList<int> roles;
    if (shown.position != tile.position)
        roles << PositionRole;
    if (!looksEqual(shown.extra, tile.extra))
        roles << NameRole << DetailRole << IconRole << SymbolRole << TintRole << IsHiddenRole;
    const bool isNew = shown.isNew;
    shown = tile;
    shown.isNew = isNew;
    if (!roles.isEmpty())
        Q_EMIT dataChanged(index(int(row)), index(int(row)), roles);
}

} // namespace brimshade::panel
