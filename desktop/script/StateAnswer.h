#pragma once
#include <QJsonObject>

namespace brimshade::desktop {

class Desktop;

// The desktop's share of the "state" answer. Takes the lists of what came since the last one. Main thread.
QJsonObject stateAnswer(Desktop &desktop);

} // namespace brimshade::desktop
