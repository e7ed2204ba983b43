#pragma once
#include "menubar/MenuExtra.h"
#include "ui/binding/ListModel.h"

namespace brimshade::windows {

// A list of menu bar extras for a view, one per row, in the scanner's order. Rows keep their identity, the extra's id,
// across rescans. Main thread.
// The base has its full name: the QML type registrar looks it up by that spelling.
class ExtraRows : public brimshade::ui::ListModel {
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

    using ListModel::ListModel;

    QHash<int, QByteArray> roleNames() const override;

    void setExtras(const menubar::ExtraList &extras);

protected:
    int count() const override { return int(m_extras.size()); }
    // image is the icon, a platform::Image, null where there is none; symbol is never empty: "circle" stands in.
    QVariant value(int row, int role) const override;
    const menubar::MenuExtra &extra(int row) const { return m_extras[std::size_t(row)]; }
    const menubar::MenuExtra *find(const QString &id) const; // null when there is none

private:
    menubar::ExtraList m_extras;
};

} // namespace brimshade::windows
