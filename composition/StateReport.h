#pragma once
#include <QJsonObject>

namespace brimshade::app {
class AppDelegate;
} // namespace brimshade::app

namespace brimshade::composition {

// What the program itself reports for inspection: "model" with every field of NotchModel by name, "shown" and
// "divider". Absent values are null. Main thread.
QJsonObject stateReport(app::AppDelegate &delegate);

} // namespace brimshade::composition
