#include "ListModel.h"

namespace brimshade::ui {

int ListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ListModel::data(const QModelIndex &index, int role) const
{
    const bool isRow = checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid);
    return isRow ? value(index.row(), role) : QVariant();
}

void ListModel::allChanged(const QList<int> &roles)
{
    if (const int rows = count(); rows > 0)
        Q_EMIT dataChanged(index(0), index(rows - 1), roles);
}

} // namespace brimshade::ui
