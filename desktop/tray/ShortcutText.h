#pragma once
#include <QString>
#include <QVariant>

namespace brimshade::desktop::tray {

// A menu entry's shortcut, [["Control", "Shift", "q"]] as plain values, the way a menu shows it: "⌃⇧Q". Only the first
// shortcut counts; empty for anything else.
QString shortcutText(const QVariant &shortcuts);

} // namespace brimshade::desktop::tray
