#include "ExtraRows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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

QVariant ExtraRows::value(int row, int role) const
{
    const MenuExtra &extra = this->extra(row);
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
        return extra.symbol.value_or(u"circle"_s);
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
    setRows(m_extras, extras, &MenuExtra::id, [this](MenuExtra &shown, const MenuExtra &wanted) {
        const bool differs = !looksTheSame(shown, wanted);
        shown = wanted; // with its frame and element, which no role shows
        return differs ? roleNames().keys() : QList<int>();
    });
}

const MenuExtra *ExtraRows::find(const QString &id) const
{
    const auto found = std::ranges::find(m_extras, id, &MenuExtra::id);
    return found == m_extras.end() ? nullptr : &*found;
}

} // namespace brimshade::windows
