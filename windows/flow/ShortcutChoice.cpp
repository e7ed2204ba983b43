#include "ShortcutChoice.h"
#include "ui/binding/Follow.h"

#include <algorithm>

namespace brimshade::windows {

using model::allShortcuts;
using model::NotchModel;
using model::Shortcut;

void ShortcutChoice::setModel(NotchModel *model)
{
    if (!ui::follow(*this, m_model, model))
        return;
    if (model)
        connect(model, &NotchModel::shortcutChanged, this, &ShortcutChoice::indexChanged);
    Q_EMIT modelChanged();
    Q_EMIT indexChanged();
}

QStringList ShortcutChoice::titles() const
{
    QStringList titles;
    for (const Shortcut shortcut : allShortcuts)
        titles.append(shortcut == Shortcut::none ? tr("None") : displayTitle(shortcut));
    return titles;
}

int ShortcutChoice::index() const
{
    const Shortcut current = m_model ? m_model->shortcut() : Shortcut::none;
    return static_cast<int>(std::ranges::find(allShortcuts, current) - allShortcuts.begin());
}

void ShortcutChoice::choose(int index)
{
    if (m_model && index >= 0 && static_cast<size_t>(index) < allShortcuts.size())
        m_model->setShortcut(allShortcuts[static_cast<size_t>(index)]);
}

} // namespace brimshade::windows
