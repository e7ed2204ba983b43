#pragma once
#include "RowSteps.h"

#include <QAbstractListModel>
#include <algorithm>
#include <utility>

namespace brimshade::ui {

// A list for a view. A subclass keeps the rows and says what they show; they come, go, move and change one by one, so
// that a view keeps what it made for the others. Main thread.
class ListModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const final;
    QVariant data(const QModelIndex &index, int role) const final; // invalid outside of the rows

protected:
    virtual int count() const = 0;
    virtual QVariant value(int row, int role) const = 0; // row: an existing one

    void allChanged(const QList<int> &roles); // of every row

    // Turns the subclass's `rows` into the wanted ones. Rows with the same key, a string, are the same: for them
    // refresh(row, wanted) copies what is new into the row and returns the roles that show it.
    template <class Row, class Key, class Refresh>
    void setRows(std::vector<Row> &rows, const std::vector<Row> &wanted, Key key, Refresh refresh)
    {
        for (const RowStep &step : rowSteps(keys(rows, key), keys(wanted, key)))
            take(step, rows, wanted);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const QList<int> roles = refresh(rows[i], wanted[i]);
            if (!roles.isEmpty())
                Q_EMIT dataChanged(index(int(i)), index(int(i)), roles);
        }
    }

private:
    template <class Row, class Key> static QStringList keys(const std::vector<Row> &rows, Key key)
    {
        QStringList all;
        all.reserve(qsizetype(rows.size()));
        std::ranges::transform(rows, std::back_inserter(all), key);
        return all;
    }

    template <class Row> void take(const RowStep &step, std::vector<Row> &rows, const std::vector<Row> &wanted)
    {
        const auto at = rows.begin() + step.row;
        switch (step.kind) {
        case RowStep::Kind::remove:
            beginRemoveRows({}, step.row, step.row + step.count - 1);
            rows.erase(at, at + step.count);
            endRemoveRows();
            break;
        case RowStep::Kind::move:
            beginMoveRows({}, step.from, step.from, {}, step.row);
            std::rotate(at, rows.begin() + step.from, rows.begin() + step.from + 1);
            endMoveRows();
            break;
        case RowStep::Kind::insert:
            beginInsertRows({}, step.row, step.row + step.count - 1);
            rows.insert(at, wanted.begin() + step.row, wanted.begin() + step.row + step.count);
            endInsertRows();
            break;
        }
    }
};

} // namespace brimshade::ui
