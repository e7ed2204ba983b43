#pragma once
#include "menubar/MenuBarMover.h"

#include <QHash>

namespace brimshade::app {

using MoveMessages = QHash<QString, QString>; // by the id of the item that did not move

// What the user reads about one item.
QString failureMessage(const menubar::MenuExtra &extra, menubar::MenuBarMover::Failure failure);
// The same about all of them, sorted by message.
QString failureSummary(const MoveMessages &messages);

} // namespace brimshade::app
