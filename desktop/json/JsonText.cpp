#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

namespace brimshade::desktop {

namespace {

// The parser's offset points just past the offending character.
SyntaxFault faultIn(const QByteArray &text, const QJsonParseError &error)
{
    const QByteArray before = text.first(std::clamp<qsizetype>(error.offset - 1, 0, text.size()));
    const QByteArray line = before.sliced(before.lastIndexOf('\n') + 1);
    return {before.count('\n') + 1, QString::fromUtf8(line).size() + 1, error.errorString()};
}

} // namespace

std::expected<QJsonValue, SyntaxFault> parseJson(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return std::unexpected(faultIn(text, error));
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

} // namespace brimshade::desktop
