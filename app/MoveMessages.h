#pragma once
#include "menubar/MenuBarMover.h"

#include <QHash>

namespace brimshade::app {

using MoveMessages = QHash<QString, QString>; // by the id of the item that did not move

// What the user reads about one item.
QString failureMessage(const menubar::MenuExtra &extra, menubar::MenuBarMover::Failure failure);
// About all of them, in ascending order of the messages.
QString failureSummary(const MoveMessages &messages);

} // namespace brimshade::app
