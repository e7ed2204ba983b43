#include "ItemRows.h"
#include "ui/binding/Follow.h"

namespace brimshade::windows {

using menubar::MenuExtra;
using model::NotchModel;

QVariant ItemRows::value(int row, int role) const
{
    const MenuExtra &extra = this->extra(row);
    switch (role) {
    case DetailRole:
        return extra.detail == extra.name ? QString() : extra.detail;
    case ControlRole:
        return control(extra);
    case SwitchEnabledRole:
        return !m_model || m_model->movingID().isEmpty() || control(extra) == Moving;
    case InMenuBarRole:
        return !extra.isHidden;
    default:
        return ExtraRows::value(row, role);
    }
}

QHash<int, QByteArray> ItemRows::roleNames() const
{
    auto names = ExtraRows::roleNames();
    names.insert({{ControlRole, "control"}, {SwitchEnabledRole, "switchEnabled"}, {InMenuBarRole, "inMenuBar"}});
    return names;
}

NotchModel *ItemRows::model() const
{
    return m_model;
}

void ItemRows::setModel(NotchModel *model)
{
    if (!ui::follow(*this, m_model, model))
        return;
    if (model) {
        connect(model, &NotchModel::extrasChanged, this, [this] { setExtras(m_model->extras()); });
        connect(model, &NotchModel::movingIDChanged, this, [this] { allChanged({ControlRole, SwitchEnabledRole}); });
        setExtras(model->extras());
    }
    Q_EMIT modelChanged();
}

// One at a time.
void ItemRows::setInMenuBar(const QString &id, bool inMenuBar)
{
    const MenuExtra *found = find(id);
    if (!found || !m_model || !m_model->movingID().isEmpty())
        return;
    const MenuExtra extra = *found; // the callback may change the rows
    m_model->onSetHidden(extra, !inMenuBar);
}

ItemRows::Control ItemRows::control(const MenuExtra &extra) const
{
    if (m_model && m_model->movingID() == extra.id)
        return Moving;
    return extra.canMove ? Movable : Pinned;
}

} // namespace brimshade::windows
