#pragma once
#include <QJsonObject>

namespace brimshade::desktop {

class Desktop;

// The desktop's share of the "state" answer. Takes, and so empties, the lists of what happened since the last one. Main
// thread.
QJsonObject stateAnswer(Desktop &desktop);

} // namespace brimshade::desktop
