#pragma once
#include "ExtraRows.h"
#include "model/NotchModel.h"

#include <QPointer>

namespace brimshade::windows {

// The rows of the settings window's item list and what stands at each row's trailing end. Created by the view,
// which gives it the model.
class ItemRows : public ExtraRows {
    Q_OBJECT
    Q_PROPERTY(brimshade::model::NotchModel *model READ model WRITE setModel NOTIFY modelChanged REQUIRED)

public:
    // Movable: a switch. It is on while the item is in the menu bar and disabled while any item moves.
    enum Control { Moving, Pinned, Movable };
    Q_ENUM(Control)
    enum OwnRole { ControlRole = FirstOwnRole, SwitchEnabledRole, InMenuBarRole };

    using ExtraRows::ExtraRows;

    QHash<int, QByteArray> roleNames() const override;

    model::NotchModel *model() const;
    void setModel(model::NotchModel *model);
    // Asks the coordinator for the move. The row itself changes with the scan that follows it.
    Q_INVOKABLE void setInMenuBar(const QString &id, bool inMenuBar);

Q_SIGNALS:
    void modelChanged();

protected:
    QVariant value(int row, int role) const override; // detail is empty where it repeats the name

private:
    Control control(const menubar::MenuExtra &extra) const;

    QPointer<model::NotchModel> m_model;
};

} // namespace brimshade::windows
