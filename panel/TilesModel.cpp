#include "TilesModel.h"
#include "TilesInView.h"
#include "ui/binding/Follow.h"

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
    if (!ui::follow(*this, m_source, source))
        return;
    if (source) {
        connect(source, &model::NotchModel::matchesChanged, this, [this] { update(false); });
        connect(this, &TilesModel::viewChanged, this, [this] { update(true); });
    }
    update(false);
    Q_EMIT sourceChanged();
}

QHash<int, QByteArray> TilesModel::roleNames() const
{
    return {{ExtraIDRole, "extraID"},   {NameRole, "name"},         {DetailRole, "detail"},
            {IconRole, "icon"},         {SymbolRole, "symbol"},     {TintRole, "tint"},
            {IsHiddenRole, "isHidden"}, {PositionRole, "position"}, {IsNewRole, "isNew"}};
}

QVariant TilesModel::value(int row, int role) const
{
    const Tile &tile = m_tiles[std::size_t(row)];
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
    setRows(
        m_tiles, wanted(byScrolling), [](const Tile &tile) { return tile.extra.id; }, &TilesModel::refresh);
}

QList<int> TilesModel::refresh(Tile &shown, const Tile &wanted)
{
    QList<int> roles;
    if (shown.position != wanted.position)
        roles << PositionRole;
    if (!looksEqual(shown.extra, wanted.extra))
        roles << NameRole << DetailRole << IconRole << SymbolRole << TintRole << IsHiddenRole;
    const bool isNew = shown.isNew; // since it came
    shown = wanted;
    shown.isNew = isNew;
    return roles;
}

} // namespace brimshade::panel
