#pragma once
#include "menubar/MenuExtra.h"

#include <QAbstractListModel>

namespace brimshade::windows {

// A list of menu bar extras for a view, a row each, in the scanner's order. Rows keep their identity by the
// extra's id over rescans: they move, come, go and change, the list is never reset. Main thread.
class ExtraRows : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        ExtraIDRole = Qt::UserRole + 1,
        NameRole,
        DetailRole,
        ImageRole,
        SymbolRole,
        CanMoveRole,
        FirstOwnRole
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    // image is the icon, a platform::Image, null where there is none; symbol is never empty: "circle" stands in.
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setExtras(const menubar::ExtraList &extras);

protected:
    const menubar::ExtraList &extras() const { return m_extras; }
    const menubar::MenuExtra *find(const QString &id) const; // null when there is none
    void refresh(const QList<int> &roles); // what the subclass adds to every row may have changed

private:
    void removeVanished(const menubar::ExtraList &wanted);
    void place(int row, const menubar::MenuExtra &extra);
    void update(int row, const menubar::MenuExtra &extra);

    menubar::ExtraList m_extras;
};

} // namespace brimshade::windows
