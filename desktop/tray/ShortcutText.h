#pragma once
#include <QString>
#include <QVariant>

namespace brimshade::desktop::tray {

// A menu's shortcut, [["Control", "Shift", "q"]] as plain values, in the way a menu shows it: "⌃⇧Q". Only the first one
// is shown; empty for anything else.
QString shortcutText(const QVariant &shortcuts);

} // namespace brimshade::desktop::tray
