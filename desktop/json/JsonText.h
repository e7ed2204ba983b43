#pragma once
#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <expected>

namespace brimshade::desktop {

// Where a text stops being JSON, and why. From 1, columns in characters.
struct SyntaxFault {
    qsizetype line = 1, column = 1;
    QString reason;
};

// The object or list that a text is. Any thread.
std::expected<QJsonValue, SyntaxFault> parseJson(const QByteArray &text);

} // namespace brimshade::desktop
