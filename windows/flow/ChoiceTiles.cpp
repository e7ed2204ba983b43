#include "ChoiceTiles.h"

#include <utility>

namespace brimshade::windows {

ChoiceTiles::ChoiceTiles(EffectiveChoice effectiveChoice, QObject *parent)
    : ExtraRows(parent), m_effectiveChoice(std::move(effectiveChoice))
{
}

QVariant ChoiceTiles::value(int row, int role) const
{
    return role == HiddenRole ? m_effectiveChoice(extra(row)) : ExtraRows::value(row, role);
}

QHash<int, QByteArray> ChoiceTiles::roleNames() const
{
    auto names = ExtraRows::roleNames();
    names.insert(HiddenRole, "hidden");
    return names;
}

} // namespace brimshade::windows
