#pragma once
#include <QByteArray>
#include <QVariantMap>
#include <optional>

namespace brimshade::desktop {

// The settings as one JSON object. Pure functions, any thread.
QByteArray writeSettings(const QVariantMap &values);
std::optional<QVariantMap> readSettings(const QByteArray &json); // absent if the text is not one JSON object

} // namespace brimshade::desktop
