#include "ScriptLine.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

// The parser's offset is that after the offending one.
qsizetype columnOf(const QJsonParseError &error, const QByteArray &line)
{
    return QString::fromUtf8(line.first(std::clamp<qsizetype>(error.offset - 1, 0, line.size()))).size() + 1;
}

} // namespace

std::expected<QJsonObject, QString> parseScriptLine(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        return std::unexpected(
            u":%1: expected a JSON object: %2"_s.arg(columnOf(error, line)).arg(error.errorString()));
    if (!document.isObject())
        return std::unexpected(u": expected a JSON object"_s);
    return document.object();
}

} // namespace brimshade::desktop
