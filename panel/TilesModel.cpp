#include "TilesModel.h"
#include "TilesInView.h"
#include "ui/binding/Follow.h"

#include <QSet>
#include <algorithm>

namespace brimshade::panel {

namespace {

constexpr int kATurn = 4; // tiles: about a millisecond's work

bool looksEqual(const model::MenuExtra &a, const model::MenuExtra &b)
{
    return a.name == b.name && a.detail == b.detail && a.icon.isSameObject(b.icon) && a.symbol == b.symbol
        && a.tint == b.tint && a.isHidden == b.isHidden;
}

} // namespace

TilesModel::TilesModel(QObject *parent) : ListModel(parent)
{
    m_next.setSingleShot(true);
    m_next.setInterval(0);
    connect(&m_next, &QTimer::timeout, this, [this] {
        update();
        endRenewal();
    });
}

void TilesModel::setSource(model::NotchModel *source)
{
    if (!ui::follow(*this, m_source, source))
        return;
    if (source) {
        connect(source, &model::NotchModel::matchesChanged, this, &TilesModel::matchesChanged);
        connect(this, &TilesModel::viewChanged, this, &TilesModel::update);
        matchesChanged();
    }
    update();
    Q_EMIT sourceChanged();
}

QHash<int, QByteArray> TilesModel::roleNames() const
{
    return {{ExtraIDRole, "extraID"}, {NameRole, "name"},       {DetailRole, "detail"},      {IconRole, "icon"},
            {SymbolRole, "symbol"},   {TintRole, "tint"},       {IsHiddenRole, "isHidden"},  {PositionRole, "position"},
            {IsNewRole, "isNew"},     {IsFirstRole, "isFirst"}, {IsLeavingRole, "isLeaving"}};
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
    case IsFirstRole:
        return tile.isFirst;
    case IsLeavingRole:
        return tile.isLeaving;
    default:
        return {};
    }
}

void TilesModel::setUnseen(bool unseen)
{
    if (m_isUnseen == unseen)
        return;
    m_isUnseen = unseen;
    update();
    endRenewal();
    Q_EMIT isUnseenChanged();
}

void TilesModel::setKeepsLeaving(bool keeps)
{
    if (m_keepsLeaving == keeps)
        return;
    m_keepsLeaving = keeps;
    update();
    Q_EMIT keepsLeavingChanged();
}

void TilesModel::drop(const QString &id)
{
    const auto found =
        std::ranges::find_if(m_tiles, [&](const Tile &tile) { return tile.isLeaving && tile.extra.id == id; });
    if (found == m_tiles.end())
        return;
    std::vector<Tile> rest = m_tiles;
    rest.erase(rest.begin() + (found - m_tiles.begin()));
    setRows(m_tiles, rest, &TilesModel::idOf, &TilesModel::refresh);
}

void TilesModel::matchesChanged()
{
    m_isFirst = m_isFirst || !m_hasItems;
    m_hasItems = m_source->itemCount() > 0;
    m_isRenewing = true;
    QMetaObject::invokeMethod(this, &TilesModel::endRenewal, Qt::QueuedConnection);
    update();
}

void TilesModel::endRenewal()
{
    if (!m_isHolding)
        m_isRenewing = m_isFirst = false;
}

std::vector<TilesModel::Tile> TilesModel::wanted() const
{
    std::vector<Tile> tiles;
    if (!m_source || m_viewBottom <= m_viewTop)
        return tiles;
    const auto &matches = m_section == BehindTheNotch ? m_source->hiddenMatches() : m_source->visibleMatches();
    const auto [first, end] = tilesInView(m_viewTop, m_viewBottom, m_source->columns(), int(matches.size()));
    tiles.reserve(std::size_t(end - first));
    for (int i = first; i < end; ++i) {
        const auto &extra = m_source->extras()[std::size_t(matches[std::size_t(i)])];
        tiles.push_back({extra, i, m_isRenewing, m_isFirst});
    }
    return tiles;
}

void TilesModel::keepLeaving(std::vector<Tile> &wanted) const
{
    QSet<QString> ids;
    for (const Tile &tile : wanted)
        ids.insert(tile.extra.id);
    for (const Tile &tile : m_tiles) {
        if (ids.contains(tile.extra.id) || !(m_isRenewing || tile.isLeaving))
            continue;
        wanted.push_back(tile);
        wanted.back().isLeaving = true;
    }
}

void TilesModel::holdBack(std::vector<Tile> &wanted)
{
    QSet<QString> shown;
    for (const Tile &tile : m_tiles)
        shown.insert(tile.extra.id);
    const int most = m_isUnseen ? 0 : kATurn;
    int fresh = 0;
    const auto held =
        std::erase_if(wanted, [&](const Tile &tile) { return !shown.contains(tile.extra.id) && ++fresh > most; });
    m_isHolding = held > 0;
    if (m_isHolding && !m_isUnseen)
        m_next.start();
}

void TilesModel::update()
{
    std::vector<Tile> tiles = wanted();
    if (m_keepsLeaving)
        keepLeaving(tiles);
    if (m_isPaced)
        holdBack(tiles);
    setRows(m_tiles, tiles, &TilesModel::idOf, &TilesModel::refresh);
}

QList<int> TilesModel::refresh(Tile &shown, const Tile &wanted)
{
    QList<int> roles;
    if (shown.position != wanted.position)
        roles << PositionRole;
    if (shown.isLeaving != wanted.isLeaving)
        roles << IsLeavingRole;
    if (!looksEqual(shown.extra, wanted.extra))
        roles << NameRole << DetailRole << IconRole << SymbolRole << TintRole << IsHiddenRole;
    const Tile before = shown;
    shown = wanted;
    shown.isNew = before.isNew; // decided when it came
    shown.isFirst = before.isFirst;
    return roles;
}

} // namespace brimshade::panel
