#pragma once
#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// The command on one line of a script. The error goes behind the line's place: ":7: expected a JSON object: …" with the
// column, from 1 and in characters, or ": expected a JSON object".
std::expected<QJsonObject, QString> parseScriptLine(const QByteArray &line);

} // namespace brimshade::desktop
