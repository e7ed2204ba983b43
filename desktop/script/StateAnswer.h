#pragma once
#include <QJsonObject>

namespace brimshade::desktop {

class Desktop;
class MemoryDefaults;

// The desktop's share of the "state" answer. Takes the lists of what came since the last one. Main thread.
QJsonObject stateAnswer(Desktop &desktop, const MemoryDefaults &defaults);

} // namespace brimshade::desktop
