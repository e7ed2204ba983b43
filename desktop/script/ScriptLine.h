#pragma once
#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// The command on one line of a script. The error is to be appended to the line's place: ":7: expected a JSON object: …"
// with the column in characters, from 1, or ": expected a JSON object".
std::expected<QJsonObject, QString> parseScriptLine(const QByteArray &line);

} // namespace brimshade::desktop
