#pragma once
#include <QString>

namespace brimshade::composition {

// What a report of a fault should say first: the version, Qt's, and the session's display, desktop and language. Main
// thread; needs a QGuiApplication.
QString whatRuns();

} // namespace brimshade::composition
