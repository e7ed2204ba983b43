#include "ChoiceTiles.h"

#include <utility>

namespace brimshade::windows {

ChoiceTiles::ChoiceTiles(EffectiveChoice effectiveChoice, QObject *parent)
    : ExtraRows(parent), m_effectiveChoice(std::move(effectiveChoice))
{
}

QVariant ChoiceTiles::data(const QModelIndex &index, int role) const
{
    if (role != HiddenRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return ExtraRows::data(index, role);
    return m_effectiveChoice(extras()[static_cast<size_t>(index.row())]);
}

QHash<int, QByteArray> ChoiceTiles::roleNames() const
{
    auto names = ExtraRows::roleNames();
    names.insert(HiddenRole, "hidden");
    return names;
}

void ChoiceTiles::choicesChanged()
{
    refresh({HiddenRole});
}

} // namespace brimshade::windows
