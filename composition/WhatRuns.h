#pragma once
#include <QString>

namespace brimshade::composition {

// What a fault report should say first: the versions of Brimshade and Qt, and the session's display, desktop and
// language. Main thread; needs a QGuiApplication.
QString whatRuns();

} // namespace brimshade::composition
