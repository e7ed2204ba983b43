#pragma once
#include <QHash>
#include <QString>

namespace brimshade::windows {

using ItemChoices = QHash<QString, bool>; // an item's id → true: tucked away, false: in the menu bar

} // namespace brimshade::windows
